// Disks of a test's own, where the system lets a program have some.
#pragma once

#include <tarnwise/Scalars.h>

#include <sys/resource.h>

namespace Tarnwise {

// To be called before there is a second thread: from then on what is mounted is seen by this program only.
void BeginDisks();
bool HasDisks();
String WhyNoDisks();

// An empty one of 64 kB. Gone with the program.
String SmallDisk();
void MakeReadOnly(const String& folder);

// From now on no file may become larger.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes);
  void End() const;

 private:
  rlimit former_{};
};

}  // namespace Tarnwise
