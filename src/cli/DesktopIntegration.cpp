#include "cli/DesktopIntegration.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include "cli/ExitStatus.h"

namespace nomra::cli {

namespace {

// Marks the files that are ours to update and remove.
constexpr std::string_view kOwnMark = "Made by nomra-cli --install-integration";
constexpr std::string_view kThunarId = "<unique-id>nomra-rename-with-nomra</unique-id>";
constexpr std::string_view kActionsEnd = "</actions>";

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::string(value) : std::string();
}

std::string WithoutTrailingSlash(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

std::string DolphinFile(const IntegrationPlaces& places) {
  return places.dataHome + "/kio/servicemenus/nomra-rename.desktop";
}
std::string NautilusFile(const IntegrationPlaces& places) {
  return places.dataHome + "/nautilus/scripts/Rename with Nomra";
}
std::string ThunarFile(const IntegrationPlaces& places) { return places.configHome + "/Thunar/uca.xml"; }

// A path in double quotes as desktop entries and Thunar's command line take it.
std::string DoubleQuoted(const std::string& path) { return '"' + path + '"'; }

std::string SingleQuoted(const std::string& path) {
  std::string quoted = "'";
  for (const char c : path) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::string XmlEscaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

std::string DolphinText(const IntegrationPlaces& places) {
  return "[Desktop Entry]\n# " + std::string(kOwnMark) +
         "; --remove-integration takes it away.\n"
         "Type=Service\n"
         "MimeType=all/all;\n"
         "Actions=renameWithNomra;\n"
         "X-KDE-Priority=TopLevel\n"
         "\n"
         "[Desktop Action renameWithNomra]\n"
         "Name=Rename with Nomra\n"
         "Name[de]=Mit Nomra umbenennen\n"
         "Icon=org.nomra.Nomra\n"
         "Exec=" +
         DoubleQuoted(places.program) + " %F\n";
}

std::string NautilusText(const IntegrationPlaces& places) {
  return "#!/bin/sh\n# " + std::string(kOwnMark) +
         "; --remove-integration takes it away.\n"
         "# Nautilus hands over the chosen files one a line.\n"
         "IFS='\n'\n"
         "set -f\n"
         "exec " +
         SingleQuoted(places.program) + " $NAUTILUS_SCRIPT_SELECTED_FILE_PATHS\n";
}

std::string ThunarAction(const IntegrationPlaces& places) {
  return "<action>\n"
         "\t<icon>org.nomra.Nomra</icon>\n"
         "\t<name>Rename with Nomra</name>\n"
         "\t<submenu></submenu>\n"
         "\t" +
         std::string(kThunarId) +
         "\n"
         "\t<command>" +
         XmlEscaped(DoubleQuoted(places.program)) +
         " %F</command>\n"
         "\t<description>Rename the chosen files and folders in Nomra</description>\n"
         "\t<range>*</range>\n"
         "\t<patterns>*</patterns>\n"
         "\t<directories/>\n"
         "\t<audio-files/>\n"
         "\t<image-files/>\n"
         "\t<other-files/>\n"
         "\t<text-files/>\n"
         "\t<video-files/>\n"
         "</action>\n";
}

class Reporter {
 public:
  Reporter(std::ostream& out, std::ostream& messages) : out_(out), messages_(messages) {}
  void Done(const std::string& text) { out_ << text << '\n'; }
  void Refused(const std::string& text) {
    messages_ << "nomra-cli: " << text << '\n';
    faulted_ = true;
  }
  int Status() const { return faulted_ ? kExitFault : kExitSuccess; }

 private:
  std::ostream& out_;
  std::ostream& messages_;
  bool faulted_ = false;
};

bool IsOurs(platform::FileSystem& fileSystem, const std::string& path) {
  const auto content = fileSystem.ReadFile(path);
  return content && content->find(kOwnMark) != std::string::npos;
}

// Writes a file of ours where no file of the user's stands. `modeFrom`
// gives the permission bits: the launcher script takes the program's, so
// it may run as the program does.
void PutOwnFile(platform::FileSystem& fileSystem, const std::string& path, const std::string& text,
                const std::string& modeFrom, const char* what, Reporter& report) {
  const bool present = fileSystem.Inspect(path).kind != platform::EntryKind::Missing;
  if (present && !IsOurs(fileSystem, path)) {
    report.Refused(std::string(what) + ": left alone, " + path + " is there and isn't Nomra's");
    return;
  }
  fileSystem.MakeFolderPath(path.substr(0, path.rfind('/') + 1));
  // The old copy goes first, so the new one takes its bits from the model.
  if (present) fileSystem.RemoveFile(path);
  if (const int error = fileSystem.WriteFile(path, text, modeFrom); error != 0) {
    report.Refused(std::string(what) + ": could not write " + path + ": " + std::strerror(error));
    return;
  }
  report.Done(std::string(what) + ": " + (present ? "updated " : "installed ") + path);
}

void RemoveOwnFile(platform::FileSystem& fileSystem, const std::string& path, const char* what, Reporter& report) {
  if (fileSystem.Inspect(path).kind == platform::EntryKind::Missing) {
    report.Done(std::string(what) + ": nothing to remove at " + path);
    return;
  }
  if (!IsOurs(fileSystem, path)) {
    report.Refused(std::string(what) + ": left alone, " + path + " isn't Nomra's");
    return;
  }
  if (const int error = fileSystem.RemoveFile(path); error != 0) {
    report.Refused(std::string(what) + ": could not remove " + path + ": " + std::strerror(error));
    return;
  }
  report.Done(std::string(what) + ": removed " + path);
}

// The span of our action in Thunar's list: from the start of the line of
// its <action> to the end of the line of its </action>.
std::optional<std::pair<std::size_t, std::size_t>> OurThunarAction(const std::string& text) {
  const std::size_t id = text.find(kThunarId);
  if (id == std::string::npos) return std::nullopt;
  const std::size_t open = text.rfind("<action>", id);
  const std::size_t close = text.find("</action>", id);
  if (open == std::string::npos || close == std::string::npos) return std::nullopt;
  const std::size_t lineStart = text.rfind('\n', open);
  const std::size_t start = lineStart == std::string::npos ? 0 : lineStart + 1;
  std::size_t end = close + std::string_view("</action>").size();
  if (end < text.size() && text[end] == '\n') ++end;
  return std::make_pair(start, end);
}

void AddThunarAction(platform::FileSystem& fileSystem, const IntegrationPlaces& places, Reporter& report) {
  const std::string path = ThunarFile(places);
  std::optional<std::string> text = fileSystem.ReadFile(path);
  // Without a list of the user's own, Thunar shows the system's; ours joins
  // that one, so its actions stay.
  if (!text && !places.systemThunarActions.empty()) text = fileSystem.ReadFile(places.systemThunarActions);
  if (!text) {
    report.Done("Thunar: passed over, there is no " + path + " and no list of actions of the system");
    return;
  }
  if (const auto ours = OurThunarAction(*text)) text->erase(ours->first, ours->second - ours->first);
  const std::size_t end = text->rfind(kActionsEnd);
  if (end == std::string::npos) {
    report.Refused("Thunar: left alone, " + path + " has no " + std::string(kActionsEnd));
    return;
  }
  text->insert(end, ThunarAction(places));
  fileSystem.MakeFolderPath(places.configHome + "/Thunar/");
  if (const int error = fileSystem.ReplaceFile(path, *text); error != 0) {
    report.Refused("Thunar: could not write " + path + ": " + std::strerror(error));
    return;
  }
  report.Done("Thunar: added Rename with Nomra to " + path);
}

void RemoveThunarAction(platform::FileSystem& fileSystem, const IntegrationPlaces& places, Reporter& report) {
  const std::string path = ThunarFile(places);
  std::optional<std::string> text = fileSystem.ReadFile(path);
  const auto ours = text ? OurThunarAction(*text) : std::nullopt;
  if (!ours) {
    report.Done("Thunar: nothing to remove in " + path);
    return;
  }
  text->erase(ours->first, ours->second - ours->first);
  if (const int error = fileSystem.ReplaceFile(path, *text); error != 0) {
    report.Refused("Thunar: could not write " + path + ": " + std::strerror(error));
    return;
  }
  report.Done("Thunar: removed Rename with Nomra from " + path);
}

}  // namespace

IntegrationPlaces FindIntegrationPlaces(platform::Platform& system) {
  platform::DataLocations& locations = system.Locations();
  IntegrationPlaces places;
  places.program = locations.ExecutableFolder() + "nomra";
  places.dataHome = locations.DataHome();
  // The XDG rules count only absolute values.
  std::string config = Environment("XDG_CONFIG_HOME");
  if (config.empty() || config.front() != '/') config = locations.HomeFolder() + "/.config";
  places.configHome = WithoutTrailingSlash(config);
  std::string dirs = Environment("XDG_CONFIG_DIRS");
  if (dirs.empty()) dirs = "/etc/xdg";
  std::size_t start = 0;
  while (start <= dirs.size()) {
    const std::size_t colon = dirs.find(':', start);
    const std::string dir = dirs.substr(start, colon == std::string::npos ? std::string::npos : colon - start);
    if (!dir.empty() && dir.front() == '/') {
      const std::string candidate = WithoutTrailingSlash(dir) + "/Thunar/uca.xml";
      if (system.Files().Status(candidate).kind == platform::EntryKind::File) {
        places.systemThunarActions = candidate;
        break;
      }
    }
    if (colon == std::string::npos) break;
    start = colon + 1;
  }
  return places;
}

int InstallIntegration(platform::FileSystem& fileSystem, const IntegrationPlaces& places, std::ostream& out,
                       std::ostream& messages) {
  Reporter report(out, messages);
  if (fileSystem.Status(places.program).kind != platform::EntryKind::File) {
    report.Refused("the window's program isn't there: " + places.program);
    return report.Status();
  }
  // A path the entries can't quote is refused rather than half working.
  if (places.program.find_first_of("\"`$\\%'\n") != std::string::npos) {
    report.Refused("the program's path holds a character the file managers can't take: " + places.program);
    return report.Status();
  }
  PutOwnFile(fileSystem, DolphinFile(places), DolphinText(places), places.program, "Dolphin", report);
  PutOwnFile(fileSystem, NautilusFile(places), NautilusText(places), places.program, "Nautilus", report);
  AddThunarAction(fileSystem, places, report);
  return report.Status();
}

int RemoveIntegration(platform::FileSystem& fileSystem, const IntegrationPlaces& places, std::ostream& out,
                      std::ostream& messages) {
  Reporter report(out, messages);
  RemoveOwnFile(fileSystem, DolphinFile(places), "Dolphin", report);
  RemoveOwnFile(fileSystem, NautilusFile(places), "Nautilus", report);
  RemoveThunarAction(fileSystem, places, report);
  return report.Status();
}

}  // namespace nomra::cli
