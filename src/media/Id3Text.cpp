#include "media/Id3Text.h"

#include <algorithm>

namespace nomra::media {

namespace {

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool IsEncodingByte(char c) { return c == '\0' || c == '\x01'; }

bool StartsWithByteOrderMark(std::string_view text) {
  return text.size() >= 2 && ((text[0] == '\xFF' && text[1] == '\xFE') || (text[0] == '\xFE' && text[1] == '\xFF'));
}

std::string WithoutNuls(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  std::copy_if(text.begin(), text.end(), std::back_inserter(out), [](char c) { return c != '\0'; });
  return out;
}

}  // namespace

std::string StripNuls(std::string_view field) { return WithoutNuls(TrimBlanks(field)); }

std::string CleanFrameText(std::string_view data) {
  std::string_view text = TrimBlanks(data);
  while (!text.empty() && IsEncodingByte(text.front())) text.remove_prefix(1);
  if (text.size() >= 4 && text[3] == '\0' && !StartsWithByteOrderMark(text)) text.remove_prefix(4);
  std::string out;
  if (text.size() > 2 && StartsWithByteOrderMark(text)) {
    out = WithoutNuls(text.substr(2));
  } else {
    out.assign(text);
  }
  while (!out.empty() && IsEncodingByte(out.back())) out.pop_back();
  return out;
}

}  // namespace nomra::media
