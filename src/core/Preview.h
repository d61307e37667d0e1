#pragma once

namespace nomra::core {

// The preview: the list as the user sees it, old and new names side by
// side. Every command that changes the list ends by refreshing it, so that
// colours, counts, the history of pending names, the order, the command
// states and the status text follow the change.
class Preview {
 public:
  virtual ~Preview() = default;
  virtual void Refresh() = 0;
};

}  // namespace nomra::core
