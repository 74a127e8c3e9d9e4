// Single values of a description: numbers, Variants, bytes; and the description as text.
#pragma once

#include "modelfiles/JsonSection.h"

#include <tarnwise/Variant.h>

namespace Tarnwise {

// A whole number without a point where that says the same; {"bits": "7ff8000000000000"} for what JSON can't write.
Json NumberJson(double number);

// A Double is a number, a String a text, a Boolean true or false, Empty null; the others name their type:
// {"null": true}, {"integer": 3}, {"long": 3}, {"single": 0.1}, {"currency": "12.5"}, {"date": 36526.25}, {"byte": 3}.
Json VariantJson(const Variant& value);
Variant VariantOf(const Json& value, const String& place);

// Bytes as hexadecimal digits. From a description also as a list of numbers. There must be exactly `count`.
Json BytesJson(const std::vector<std::uint8_t>& bytes);
std::vector<std::uint8_t> BytesOf(const Json& value, const String& place, std::size_t count);

// The description in a text file's bytes. A ModelFault names the line of what is no JSON and where in the description
// it stands, a key that is there twice, and lists and objects nested more than 100 deep.
Json ParseDescription(const String& text);

// The description as people like to read it: what fits is on one line. Ends with a line end.
String DescriptionText(const Json& description);

}  // namespace Tarnwise
