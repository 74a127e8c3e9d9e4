#include "modelfiles/NamedCodePage.h"

#include "runtime/Utf8.h"

#include <iconv.h>

#include <cerrno>
#include <memory>
#include <vector>

namespace Tarnwise {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

class Converter {
 public:
  Converter(const String& to, const String& from) : handle_(iconv_open(to.c_str(), from.c_str())) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (IsThere()) iconv_close(handle_);
  }

  bool IsThere() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  // Converts as much from the front of `from` as can be, and takes that off; false where something is left.
  bool Convert(std::string_view& from, std::string& to) {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(from.data());
    std::size_t left = from.size();
    bool whole = false;
    for (bool more = true; more;) {
      const std::size_t before = to.size();
      to.resize(before + left + 16);
      char* out = to.data() + before;
      std::size_t room = to.size() - before;
      whole = iconv(handle_, &in, &left, &out, &room) != static_cast<std::size_t>(-1);
      more = !whole && errno == E2BIG;
      if (whole) iconv(handle_, nullptr, nullptr, &out, &room);  // back to the state that a text begins with
      to.resize(to.size() - room);
    }
    from.remove_prefix(from.size() - left);
    return whole;
  }

 private:
  iconv_t handle_;
};

String TextIn(Converter& toUtf8, std::string_view bytes) {
  String text;
  while (!toUtf8.Convert(bytes, text) && !bytes.empty()) {
    AppendUtf8(text, kReplacement);
    bytes.remove_prefix(1);
  }
  return text;
}

std::optional<std::string> BytesIn(Converter& fromUtf8, std::string_view text) {
  std::string bytes;
  if (!fromUtf8.Convert(text, bytes)) return std::nullopt;
  return bytes;
}

}  // namespace

const char* const kCodePageNames = "iconv --list shows the names";

std::optional<CodePage> NamedCodePage(const String& name) {
  if (name.find('/') != String::npos) return std::nullopt;  // what follows would ask for similar characters
  const auto toUtf8 = std::make_shared<Converter>("UTF-8", name);
  const auto fromUtf8 = std::make_shared<Converter>(name, "UTF-8");
  if (!toUtf8->IsThere() || !fromUtf8->IsThere()) return std::nullopt;
  return CodePage{name, [toUtf8](std::string_view bytes) { return TextIn(*toUtf8, bytes); },
                  [fromUtf8](std::string_view text) { return BytesIn(*fromUtf8, text); }};
}

}  // namespace Tarnwise
