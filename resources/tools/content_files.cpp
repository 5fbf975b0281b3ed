#include "resources/tools/content_files.h"

#include <algorithm>
#include <fstream>

#include "content/record.h"
#include "content/resource.h"
#include "core/value.h"
#include "resources/tools/warning_file.h"

namespace lad::resgen {

namespace {

// The line of the file on which record `index` (from 0) of the trimmed text begins.
int recordLine(std::string_view file, std::string_view trimmed, int index) {
  std::size_t at = static_cast<std::size_t>(trimmed.data() - file.data());
  for (int i = 0; i < index; ++i) {
    const std::size_t next = file.find("<br>", at);
    if (next == std::string_view::npos) break;
    at = next + 4;
  }
  return 1 + static_cast<int>(std::count(file.begin(), file.begin() + at, '\n'));
}

bool jsonName(const std::filesystem::path& path) {
  return path.extension() == ".jsn";
}

}  // namespace

std::optional<SourceError> checkContent(const SourceFile& source) {
  const std::string_view trimmed = content::trimText(source.text);
  if (jsonName(source.path)) {
    const auto tree = Value::fromJson(trimmed);
    if (!tree || !tree->asList()) return SourceError{1, "not a JSON array of groups"};
    return std::nullopt;
  }
  if (source.path.filename() == kWarningFileName) return checkWarnings(source.text);
  const auto text = content::parsePlainText(trimmed);
  if (text.faults.empty()) return std::nullopt;
  const auto& fault = text.faults.front();
  return SourceError{recordLine(source.text, trimmed, fault.record), fault.describe()};
}

std::optional<BuildFault> packageContent(const std::filesystem::path& folder,
                                         const std::vector<SourceFile>& sources) {
  for (const auto& source : sources)
    if (auto error = checkContent(source)) return BuildFault{source.path, *error};
  std::error_code ec;
  std::filesystem::create_directories(folder, ec);
  for (const auto& source : sources) {
    const auto out = folder / source.path.filename();
    std::ofstream file(out, std::ios::binary | std::ios::trunc);
    file << source.text;
    if (!file.flush()) return BuildFault{out, {0, "cannot write the file"}};
  }
  return std::nullopt;
}

}  // namespace lad::resgen
