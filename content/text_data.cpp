// Preparing texts and moving between groups and spans.
#include "content/text_data.h"

#include <limits>

#include "content/queries.h"
#include "content/resource.h"

namespace lad::content {

namespace {

constexpr int kSpanStep = 5;

}  // namespace

TextData::TextData(LayoutTools tools, LayoutSettings settings)
    : tools_(std::move(tools)), settings_(settings) {}

void TextData::prepareFromString(std::string_view text) {
  layout_ = layoutPlain(parsePlainText(text, tools_.translate), settings_, filter_, tools_);
}

void TextData::prepareFromJson(std::string_view text, std::optional<std::string_view> append) {
  auto groups = parseJsonGroups(text);
  if (append) mergeGroups(groups, parseJsonGroups(*append));
  layout_ = layoutJson(groups, settings_, filter_, tools_);
}

void TextData::prepareFromFile(const std::filesystem::path& folder, std::string_view name,
                               std::optional<std::string_view> append) {
  folder_ = folder;
  name_ = name;
  append_ = append ? std::optional<std::string>(*append) : std::nullopt;
  const Resource resource = loadResource(folder, name);
  if (resource.json)
    prepareFromJson(resource.text, append);
  else
    prepareFromString(resource.text);
}

void TextData::nextGroup() {
  filter_.groupid = content::nextGroup(filter_.groupid, layout_.groupMax);
}

void TextData::prevGroup() {
  filter_.groupid = content::prevGroup(filter_.groupid, layout_.groupMax);
}

void TextData::specialPartial(int n) {
  filter_.partialStart = content::specialPartial(n);
}

std::optional<double> TextData::prevSpan() {
  const int old = filter_.partialStart;
  if (old < 0) return std::nullopt;
  filter_.partialStart = old < kSpanStep ? 0 : old - kSpanStep;
  reload();
  return hlGroup(layout_.groups, old, false);
}

void TextData::nextSpan() {
  const int old = filter_.partialStart;
  if (old < 0 || old > std::numeric_limits<int>::max() - kSpanStep) return;
  filter_.partialStart += kSpanStep;
  reload();
}

void TextData::reload() {
  if (name_.empty()) return;
  const std::string name = name_;
  const auto append = append_;
  prepareFromFile(folder_, name, append);
}

}  // namespace lad::content
