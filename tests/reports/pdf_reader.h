// Reading the reports back as a PDF viewer would: page sizes, metadata and the words on each
// page with their places; and the pages as PNG pictures for a person to look at.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lad::testing {

struct PdfWord {
  std::string text;
  double x = 0, y = 0;  // top left, y growing downwards
};

struct PdfPage {
  double width = 0, height = 0;
  std::vector<PdfWord> words;
  // The words joined by blanks, in reading order.
  std::string text() const;
  // The first word that is exactly `text`, or nullptr.
  const PdfWord* find(const std::string& text) const;
};

struct PdfFile {
  std::string title, creator;
  std::vector<PdfPage> pages;
};

std::optional<PdfFile> readPdf(const std::filesystem::path& file);

// Writes the pages as <name>-<page>.png into the test output folder, small enough to look at.
void renderPages(const std::filesystem::path& file, const std::string& name);

}  // namespace lad::testing
