#pragma once
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/JsonReader.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// What mutagen read, one flat JSON object, as field texts: numbers as
// stod and stoi read them back, true and false as words, null as "".
// Nothing when the text is no such object, so a broken oracle fails the
// tests that read it.
inline std::optional<std::map<std::string, std::string>> OracleFields(const std::string& text) {
  JsonValue document;
  try {
    document = ParseJson(text);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
  if (document.kind != JsonValue::Kind::Object) return std::nullopt;
  std::map<std::string, std::string> fields;
  for (const auto& [key, value] : document.members) {
    switch (value.kind) {
      case JsonValue::Kind::String: fields[key] = value.text; break;
      case JsonValue::Kind::Boolean: fields[key] = value.boolean ? "true" : "false"; break;
      case JsonValue::Kind::Null: fields[key] = ""; break;
      case JsonValue::Kind::Number: {
        char text[32];
        std::snprintf(text, sizeof text, "%.17g", value.number);
        fields[key] = text;
        break;
      }
      default: return std::nullopt;
    }
  }
  return fields;
}

// The real MP3 files scripts/make-mp3-fixtures.sh makes from generated
// sound with lame, id3v2, eyeD3 and mutagen, and what mutagen reads from
// each. The script runs once per suite: it takes about two seconds.
class Mp3Fixtures {
 public:
  // Every file the script makes; a tool that is missing or fails leaves
  // one out, and that fails the suites (nomra.sh installs the tools).
  static const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = {
        "lame_cbr128.mp3",
        "lame_cbr128_no_info_frame.mp3",
        "lame_cbr64_mono.mp3",
        "lame_vbr_v2_xing.mp3",
        "lame_cbr128_48k.mp3",
        "lame_cbr128_32k.mp3",
        "lame_mpeg2_22k_joint.mp3",
        "lame_mpeg2_22k_mono.mp3",
        "lame_mpeg2_22k_stereo.mp3",
        "lame_mpeg25_11k_joint.mp3",
        "lame_cbr128_id3v1_id3v2_3_utf16.mp3",
        "id3v2_id3v1_id3v2_3_latin1.mp3",
        "eyed3_v24_utf8.mp3",
        "eyed3_v24_utf16.mp3",
        "eyed3_v23_utf16.mp3",
        "eyed3_v11_track.mp3",
        "eyed3_v24_title200.mp3",
        "eyed3_v23_apic_small.mp3",
        "eyed3_v23_apic_big.mp3",
        "mutagen_v23_utf16_bom.mp3",
        "mutagen_v23_latin1_padding4096.mp3",
        "mutagen_v24_latin1_small_frames.mp3",
        "mutagen_v23_apic_3000.mp3",
        "mutagen_v23_apic_40000.mp3",
        "mutagen_v23_two_comments.mp3",
        "mutagen_v23_three_letter_texts.mp3",
        "built_v22.mp3",
        "built_v23_extended_header.mp3",
        "built_v23_unsynchronised.mp3",
    };
    return names;
  }

  Mp3Fixtures() {
    const std::string script = std::string(NOMRA_SOURCE_DIR) + "/scripts/make-mp3-fixtures.sh";
    folder_ = folder_root_.MakeFolder("mp3");
    const std::string log = folder_root_.Path() + "make.log";
    const std::string command = "bash '" + script + "' '" + folder_ + "' >'" + log + "' 2>&1";
    const int status = std::system(command.c_str());
    problems_ = ReadWholeFile(log);
    if (status != 0) problems_ += "\nmake-mp3-fixtures.sh failed with status " + std::to_string(status);
    for (const std::string& name : Names()) {
      const std::string bytes = ReadWholeFile(folder_ + name);
      auto oracle = OracleFields(ReadWholeFile(folder_ + name + ".json"));
      if (bytes.empty() || !oracle) {
        problems_ += "\nno file or no oracle for " + name;
        continue;
      }
      files_[name] = {bytes, std::move(*oracle)};
    }
    made_ = status == 0 && files_.size() == Names().size();
  }

  bool Made() const { return made_; }
  // The script's output and what is missing, for a failure message.
  const std::string& Problems() const { return problems_; }
  std::string PathOf(const std::string& name) const { return folder_ + name; }
  const std::string& Bytes(const std::string& name) const { return files_.at(name).bytes; }
  const std::map<std::string, std::string>& Oracle(const std::string& name) const { return files_.at(name).oracle; }

 private:
  struct File {
    std::string bytes;
    std::map<std::string, std::string> oracle;
  };
  TempFolder folder_root_;
  std::string folder_;
  std::string problems_;
  std::map<std::string, File> files_;
  bool made_ = false;
};

}  // namespace nomra::testing
