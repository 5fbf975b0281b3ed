// Fuzz target of change files from another installation: any bytes under the name of a change
// file, applied to a real installation on a temporary folder. The first byte chooses the kind
// of file (its two low bits) and the edition (pregnancy or child); the rest is the file. A file
// that is refused says why and leaves the diary's database and files exactly as they were; what
// does not read as a property list says why too.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "cloud/change_apply.h"
#include "cloud/change_names.h"
#include "cloud/property_list.h"
#include "core/clock.h"
#include "core/context.h"
#include "core/launch.h"
#include "fuzz/fuzz_input.h"
#include "store/first_launch.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;

constexpr const char* kGid = "00000000-0000-0000-0001-000000000001";

// One installation per edition for the whole run: launching one takes longer than an input.
struct Installation {
  explicit Installation(int appid) {
    auto clock = std::make_shared<lad::ManualClock>(*lad::dateFromIso("2026-03-30T08:00:00Z"),
                                                    "Europe/Berlin");
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{appid, 1, dir.path(), "1.0", clock, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
  }

  // The live database and every file of the documents except the daily reserve copies.
  std::map<std::string, std::string> snapshot() const {
    std::map<std::string, std::string> files{{"live", lad::testing::readFile(store->liveFile())}};
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(context->documentsDir())) {
      const std::string path = entry.path().string();
      if (entry.is_regular_file() && path.find("/reserv/") == std::string::npos)
        files[path] = lad::testing::readFile(entry.path());
    }
    return files;
  }

  lad::testing::TempDir dir;
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;
};

Installation& installation(bool child) {
  static Installation pregnancy(1), children(2);
  return child ? children : pregnancy;
}

std::string fileName(int kind) {
  const std::string part = kind == lad::kChangeTicks ? "DEVICE" : "30-03-2026";
  return kind == lad::kChangeProfile ? lad::changeFileName(kind, kGid)
                                     : lad::changeFileName(kind, kGid, part);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lad::fuzz::FuzzInput input(data, size);
  const std::uint8_t choice = input.byte();
  const std::string_view bytes = input.rest();

  std::string error;
  const auto value = lad::fromPropertyList(
      {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, &error);
  check(value.has_value() == error.empty());

  Installation& on = installation(choice & 4);
  const auto file = on.dir.path() / "incoming" / fileName(choice % 4 + 1);
  std::filesystem::create_directories(file.parent_path());
  lad::testing::writeFile(file, bytes);
  const auto before = on.snapshot();
  const lad::ChangeOutcome outcome = lad::applyChangeFile(*on.store, file, std::nullopt);
  check(outcome.applied == outcome.reason.empty());
  if (!outcome.applied) check(on.snapshot() == before);
  return 0;
}
