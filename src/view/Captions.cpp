#include "view/Captions.h"

namespace Tarnwise {

namespace {

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool IsLower(char c) { return c >= 'a' && c <= 'z'; }

bool BeginsMnemonic(const String& caption, std::size_t at) {
  if (at + 1 >= caption.size() || !IsLetterOrDigit(caption[at + 1])) return false;
  const char before = at == 0 ? ' ' : caption[at - 1];
  return !IsLetterOrDigit(before) || IsLower(caption[at + 1]);
}

}  // namespace

String MarkedCaption(const String& caption) {
  String marked;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    marked += caption[i];
    if (caption[i] != '&' || BeginsMnemonic(caption, i)) continue;
    marked += '&';
    if (i + 1 < caption.size() && caption[i + 1] == '&') ++i;
  }
  return marked;
}

String UnmarkedCaption(const String& caption) {
  const String marked = MarkedCaption(caption);
  String plain;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (marked[i] == '&' && ++i == marked.size()) break;
    plain += marked[i];
  }
  return plain;
}

char MnemonicOf(const String& caption) {
  const String marked = MarkedCaption(caption);
  for (std::size_t i = 0; i + 1 < marked.size(); ++i) {
    if (marked[i] != '&') continue;
    const char next = marked[++i];
    if (next == '&' || static_cast<unsigned char>(next) >= 0x80) continue;
    return next >= 'A' && next <= 'Z' ? static_cast<char>(next - 'A' + 'a') : next;
  }
  return 0;
}

}  // namespace Tarnwise
