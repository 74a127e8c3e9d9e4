#include "Disks.h"
#include "Main.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace Tarnwise {

namespace {

String why;  // empty: there are disks

bool IsAlone() {
  if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

String NewFolder() {
  String folder = "/tmp/tarnwise-disk-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder for a disk could be made");
  return folder;
}

}  // namespace

void BeginDisks() {
  const String folder = NewFolder();
  if (!IsAlone() || mount("none", folder.c_str(), "tmpfs", 0, "size=64k") != 0) {
    why = String("no disk may be mounted here: ") + std::strerror(errno);
  } else {
    (void)umount(folder.c_str());
  }
  (void)rmdir(folder.c_str());
}

bool HasDisks() { return why.empty(); }

String WhyNoDisks() { return why; }

String SmallDisk() {
  const String folder = NewFolder();
  if (mount("none", folder.c_str(), "tmpfs", 0, "size=64k") != 0) throw std::runtime_error(std::strerror(errno));
  return folder;
}

void MakeReadOnly(const String& folder) {
  if (mount("none", folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
    throw std::runtime_error(std::strerror(errno));
  }
}

FileSizeLimit::FileSizeLimit(rlim_t bytes) {
  (void)signal(SIGXFSZ, SIG_IGN);
  (void)getrlimit(RLIMIT_FSIZE, &former_);
  rlimit limit = former_;
  limit.rlim_cur = bytes;
  (void)setrlimit(RLIMIT_FSIZE, &limit);
}

void FileSizeLimit::End() const { (void)setrlimit(RLIMIT_FSIZE, &former_); }

}  // namespace Tarnwise

int main(int argc, char** argv) {
  Tarnwise::BeginDisks();
  return Tarnwise::RunWindowTests(argc, argv);
}
