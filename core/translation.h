// The interface texts are written in Russian; a read-only table maps each Russian text, as a
// whole, to its German or French translation. A text without a translation shows in Russian.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/text_hash.h"

namespace lad {

class Translator {
 public:
  // Language 1 (Russian): nothing is read and nothing is translated. Any failure to open or
  // read the table leaves it empty, which shows every text in Russian.
  void prepare(int langid, const std::filesystem::path& tableFile);

  // The translation of the whole text, or the text itself.
  std::string translate(std::string_view text) const;
  std::size_t size() const { return table_.size(); }

 private:
  std::unordered_map<std::string, std::string, TextHash, std::equal_to<>> table_;
};

}  // namespace lad
