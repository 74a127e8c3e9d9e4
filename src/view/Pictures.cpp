#include "view/Pictures.h"

#include <algorithm>

namespace Tarnwise {

const Picture* FindPicture(const String& name) {
  const auto found = NamedPictures().find(name);
  return found == NamedPictures().end() ? nullptr : &found->second;
}

String PictureNameOf(const String& path) {
  const std::size_t slash = path.find_last_of("\\/");
  String name = slash == String::npos ? path : path.substr(slash + 1);
  name = name.substr(0, name.rfind('.'));
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return name;
}

std::vector<String> PictureNames() {
  std::vector<String> names;
  for (const auto& [name, picture] : NamedPictures()) names.push_back(name);
  return names;
}

}  // namespace Tarnwise
