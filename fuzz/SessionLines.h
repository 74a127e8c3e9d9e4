// Lines of a session script out of bytes. What a line names is taken from the forms that are open, so that most lines
// can be carried out; some name what is hidden, disabled or not there.
#pragma once

#include "ByteSource.h"

#include <deque>

namespace Tarnwise {

class Platform;

struct SessionLines {
  ByteSource Bytes;
  String Model;  // paths that "host load" may name
  String OtherModel;
  std::deque<String> Queued;  // lines that go together
};

// The next line; empty at the end.
String NextLine(SessionLines& lines, const Platform& screen);

}  // namespace Tarnwise
