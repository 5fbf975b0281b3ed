// The reading matter of one screen: which text it shows, which of its groups, and the text laid
// out. Headless; the screen turns the layout into its view and forwards taps on tick boxes.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "content/layout.h"

namespace lad::content {

class TextData {
 public:
  explicit TextData(LayoutTools tools, LayoutSettings settings = {});

  LayoutSettings& settings() { return settings_; }

  // Each prepare lays the text out anew: tick states do not survive it.
  void prepareFromString(std::string_view text);
  void prepareFromJson(std::string_view text, std::optional<std::string_view> append = {});
  // A resource of the content folder; the folder and name are kept for loading other spans.
  void prepareFromFile(const std::filesystem::path& folder, std::string_view name,
                       std::optional<std::string_view> append = {});

  // The group shown alone from the next prepare on; -1 shows all.
  void justGroup(int n) { filter_.groupid = n; }
  void nextGroup();
  void prevGroup();
  // Loads only a span of six groups of the next file prepared (see queries.h).
  void specialPartial(int n);
  int partialStart() const { return filter_.partialStart; }
  // The span five groups earlier, reloaded; returns where the former span's first group now is.
  // Both do nothing while every group is loaded.
  std::optional<double> prevSpan();
  // The span five groups later, reloaded.
  void nextSpan();

  const TextLayout& layout() const { return layout_; }
  TickList& checks() { return layout_.checks; }

 private:
  void reload();

  LayoutTools tools_;
  LayoutSettings settings_;
  GroupFilter filter_;
  TextLayout layout_;
  std::filesystem::path folder_;
  std::string name_;
  std::optional<std::string> append_;
};

}  // namespace lad::content
