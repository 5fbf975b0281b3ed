// Fuzz target of change files from another installation: any bytes under the name of a change
// file, applied to a real installation on a temporary folder. The first byte chooses the kind
// of file (its two low bits) and the edition (pregnancy or child); the rest is the file. A file
// that is refused says why and leaves the diary's database and files exactly as they were; what
// does not read as a property list says why too.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cloud/change_apply.h"
#include "cloud/change_names.h"
#include "cloud/property_list.h"
#include "core/clock.h"
#include "core/context.h"
#include "core/launch.h"
#include "fuzz/folder_snapshot.h"
#include "fuzz/fuzz_input.h"
#include "store/first_launch.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;

constexpr const char* kGid = "00000000-0000-0000-0001-000000000001";

// One installation per edition for the whole run, launched once: launching takes far longer
// than an input. Every input starts from the installation as it was launched: its data folder
// (the database, the documents, the settings and the cloud folder) is put back file by file
// after an input that changed it, and each input gets a new Store, so nothing the store keeps
// in memory carries over. Nothing on the way of a change file writes the settings or the
// process values, which therefore stay as launched.
class Installation {
 public:
  explicit Installation(int appid) {
    auto clock = std::make_shared<lad::ManualClock>(*lad::dateFromIso("2026-03-30T08:00:00Z"),
                                                    "Europe/Berlin");
    context_ = std::make_unique<lad::Context>(
        lad::ContextOptions{appid, 1, data_.path(), "1.0", clock, LADANEYA_RESOURCES_DIR});
    lad::launch(*context_);
    lad::Store store(*context_);
    lad::fromOldVersion(store);
    launched_.emplace(data_.path());
  }

  // Applies the file to the installation as launched and returns what came of it. A refusal
  // must leave every file as it was.
  lad::cloud::ChangeOutcome apply(const std::filesystem::path& file) {
    lad::Store store(*context_);
    const lad::cloud::ChangeOutcome outcome =
        lad::cloud::applyChangeFile(store, file, std::nullopt);
    std::vector<std::string> changed = launched_->changes();
    if (!outcome.applied) check(changed.empty());
    launched_->restore(std::move(changed));
    return outcome;
  }

  const std::filesystem::path& incoming() const { return incoming_.path(); }

 private:
  lad::testing::TempDir data_, incoming_;
  std::unique_ptr<lad::Context> context_;
  std::optional<lad::fuzz::FolderSnapshot> launched_;
};

Installation& installation(bool child) {
  static Installation pregnancy(1), children(2);
  return child ? children : pregnancy;
}

std::string fileName(int kind) {
  const std::string part = kind == lad::cloud::kChangeTicks ? "DEVICE" : "30-03-2026";
  return kind == lad::cloud::kChangeProfile ? lad::cloud::changeFileName(kind, kGid)
                                            : lad::cloud::changeFileName(kind, kGid, part);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lad::fuzz::FuzzInput input(data, size);
  const std::uint8_t choice = input.byte();
  const std::string_view bytes = input.rest();

  std::string error;
  const auto value = lad::cloud::fromPropertyList(
      {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, &error);
  check(value.has_value() == error.empty());

  Installation& on = installation(choice & 4);
  const auto file = on.incoming() / fileName(choice % 4 + 1);
  lad::testing::writeFile(file, bytes);
  const lad::cloud::ChangeOutcome outcome = on.apply(file);
  check(outcome.applied == outcome.reason.empty());
  return 0;
}
