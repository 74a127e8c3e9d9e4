// Any bytes as a model file. What is read is compared with a plain second reading, what the writer makes of it is read
// again, and the way through a file gives the same as the bytes.
#include "Expect.h"
#include "PlainReader.h"
#include "model/ModelFile.h"
#include "modelfiles/ModelWriter.h"
#include "view/Platform.h"
#include "wizard/OpenModel.h"

#include <tarnwise/TRN_DEA.h>

#include <sys/mman.h>
#include <unistd.h>

namespace Tarnwise {
namespace {

std::uint32_t Checksum(const std::vector<char>& bytes) {
  std::uint32_t sum = 2166136261U;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
  return sum ^ (sum >> 16U);
}

void CheckPlainly(const WizardData& data, const std::vector<char>& bytes) {
  const String difference = FirstDifference(data, bytes);
  Expect(difference.empty(), "read otherwise: " + difference);
}

void CheckWriter(const WizardData& data) {
  std::vector<char> written;
  try {
    written = ModelBytes(data);
  } catch (const ModelFault&) {
    return;  // a text that the format can't hold
  }
  WizardData again;
  ReadModel(again, written);
  const String difference = FirstDifference(again, data);
  Expect(difference.empty(), "written and read otherwise: " + difference);
}

// The same file, cut off somewhere: each field is as it was in the whole one, or empty.
void CheckCut(const WizardData& data, const std::vector<char>& bytes, std::size_t length) {
  static WizardData cut;
  ReadModel(cut, {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)});
  Expect(cut.NumAtts() == data.NumAtts() || cut.NumAtts() == 0, "a cut file has another number of attributes");
  Expect(cut.RJType().empty() || cut.RJType() == data.RJType(), "a cut file has other judgments");
  for (int i = 0; i < kMaxAtts; ++i) {
    Expect(cut.AttName(i).empty() || cut.AttName(i) == data.AttName(i), "a cut file has another name");
  }
}

void CheckFile(const WizardData& data, const std::vector<char>& bytes) {
  static const int file = memfd_create("model", 0);
  static const std::shared_ptr<Platform> screen = MakeHeadlessPlatform();
  static WizardData fromFile;  // with what the file before left in it
  const auto size = static_cast<ssize_t>(bytes.size());
  Expect(ftruncate(file, 0) == 0 && pwrite(file, bytes.data(), bytes.size(), 0) == size, "can't write in memory");
  fromFile.OrderChanged = true;
  fromFile.BRefAttID = 5;
  ReadModelFile(fromFile, *screen, "/proc/self/fd/" + std::to_string(file));
  const String difference = FirstDifference(fromFile, data);
  Expect(difference.empty(), "read otherwise from a file: " + difference);
  // The references are the session's, not the file's: a host that reads again keeps them.
  Expect(!fromFile.OrderChanged && fromFile.BRefAttID == 5 && screen->Pointer() == 0, "not left as after a reading");
}

}  // namespace
}  // namespace Tarnwise

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace Tarnwise;
  static WizardData data;  // read into again and again, as by a host that opens one file after the other
  const std::vector<char> file(bytes, bytes + size);
  ReadModel(data, file);
  // The comparisons take a hundred times as long and more as the reading; the bytes themselves choose which ones are
  // made.
  const std::uint32_t sum = Checksum(file);
  const std::uint32_t choice = sum % 4096;
  if (size > 0) CheckCut(data, file, sum % size);
  if (choice < 8) CheckPlainly(data, file);
  if (choice == 8) CheckWriter(data);
  if (choice < 12) CheckFile(data, file);
  return 0;
}
