// Values as plain JSON, as sessions print them and points are kept: a number is the shortest text that reads back as
// it.
#pragma once

#include "model/PointArrays.h"
#include "modelfiles/Json.h"

namespace Tarnwise {

Json ToJson(Double x);
Json ToJson(Single x);
Json ToJson(const Variant& v);
Json ToJson(const VariantArray& items);
Json ToJson(const PointArrays& points);  // an object: a list by each name
inline Json ToJson(int x) { return x; }
inline Json ToJson(Integer x) { return x; }
inline Json ToJson(Colour x) { return x; }
inline Json ToJson(bool x) { return x; }
inline Json ToJson(const String& x) { return x; }

template <class T>
Json ToJson(const Array<T>& array) {
  Json list = Json::array();
  for (int i = 0; i < array.Count(); ++i) list.push_back(ToJson(T(array[i])));
  return list;
}

template <class T>
Json ToJson(const Matrix<T>& matrix) {
  Json rows = Json::array();
  for (int row = 0; row < matrix.Rows(); ++row) {
    Json list = Json::array();
    for (int col = 0; col < matrix.Cols(); ++col) list.push_back(ToJson(matrix(row, col)));
    rows.push_back(list);
  }
  return rows;
}

// One line of text; what is no valid UTF-8 is replaced.
String JsonLine(const Json& object);

// A number, text, truth value or null as a Variant; Empty for anything else.
Variant PlainVariant(const Json& value);

}  // namespace Tarnwise
