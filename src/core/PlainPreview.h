#pragma once
#include "core/FrontEnd.h"
#include "core/ListState.h"
#include "core/Preview.h"
#include "core/StatusTexts.h"

namespace nomra::core {

// The preview without a window, as the command line keeps it: the list's
// state is refreshed and the status text told.
class PlainPreview final : public Preview {
 public:
  PlainPreview(ListState& state, FrontEnd& frontEnd, const StatusTexts& texts)
      : state_(state), frontEnd_(frontEnd), texts_(texts) {}
  void Refresh() override;

 private:
  ListState& state_;
  FrontEnd& frontEnd_;
  const StatusTexts& texts_;
};

}  // namespace nomra::core
