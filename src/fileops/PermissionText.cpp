#include "fileops/PermissionText.h"

namespace nomra::fileops {

namespace {

char ExecuteMark(bool execute, bool special, char setMark) {
  if (special) return execute ? setMark : static_cast<char>(setMark - 'a' + 'A');
  return execute ? 'x' : '-';
}

}  // namespace

std::string PermissionText(unsigned mode) {
  std::string text(9, '-');
  const unsigned specials[3] = {04000, 02000, 01000};
  const char setMarks[3] = {'s', 's', 't'};
  for (int who = 0; who < 3; ++who) {
    const unsigned bits = (mode >> (6 - 3 * who)) & 07;
    text[static_cast<std::size_t>(3 * who)] = (bits & 04) != 0 ? 'r' : '-';
    text[static_cast<std::size_t>(3 * who + 1)] = (bits & 02) != 0 ? 'w' : '-';
    text[static_cast<std::size_t>(3 * who + 2)] =
        ExecuteMark((bits & 01) != 0, (mode & specials[who]) != 0, setMarks[who]);
  }
  return text;
}

}  // namespace nomra::fileops
