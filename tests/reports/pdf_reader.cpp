#include "tests/reports/pdf_reader.h"

#include <gtest/gtest.h>
#include <poppler-document.h>
#include <poppler-page.h>

#include <cstdlib>
#include <memory>

namespace lad::testing {

namespace {

std::string utf8(const poppler::ustring& text) {
  const poppler::byte_array bytes = text.to_utf8();
  return {bytes.begin(), bytes.end()};
}

}  // namespace

std::string PdfPage::text() const {
  std::string out;
  for (const PdfWord& w : words) out += (out.empty() ? "" : " ") + w.text;
  return out;
}

const PdfWord* PdfPage::find(const std::string& text) const {
  for (const PdfWord& w : words)
    if (w.text == text) return &w;
  return nullptr;
}

std::optional<PdfFile> readPdf(const std::filesystem::path& file) {
  std::unique_ptr<poppler::document> doc(poppler::document::load_from_file(file.string()));
  if (!doc) return std::nullopt;
  PdfFile out{utf8(doc->get_title()), utf8(doc->get_creator()), {}};
  for (int i = 0; i < doc->pages(); ++i) {
    std::unique_ptr<poppler::page> page(doc->create_page(i));
    PdfPage& p = out.pages.emplace_back();
    p.width = page->page_rect().width();
    p.height = page->page_rect().height();
    for (const poppler::text_box& box : page->text_list())
      p.words.push_back({utf8(box.text()), box.bbox().x(), box.bbox().y()});
  }
  return out;
}

void renderPages(const std::filesystem::path& file, const std::string& name) {
  const std::filesystem::path out = std::filesystem::path(LADANEYA_TEST_OUTPUT) / "reports";
  std::filesystem::create_directories(out);
  const std::string command =
      "pdftoppm -r 36 -png '" + file.string() + "' '" + (out / name).string() + "'";
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

}  // namespace lad::testing
