// Keys and texts of the registry's classes, of the machine or of one user.
#pragma once

#include <windows.h>

#include <string>

namespace Tarnwise {

enum class ClassesOf { Machine, User };

bool ClassesWritable(ClassesOf whose);

// Texts as strings of the registry; an empty name is the key's own value. A failure is a ComFailure.
void WriteClassValue(ClassesOf whose, const std::wstring& key, const std::wstring& name, const std::wstring& text);

// Whether the key is there; `view` is 0 or one of KEY_WOW64_32KEY and KEY_WOW64_64KEY.
bool ClassKeyExists(ClassesOf whose, const std::wstring& key, REGSAM view);

// With all that is below it. A key that is not there is no failure.
void DeleteClassKey(ClassesOf whose, const std::wstring& key);

}  // namespace Tarnwise
