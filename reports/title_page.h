// The first page of the diary report: the picture over the whole page, the report's caption,
// and caption and value pairs such as the date the report was made.
#pragma once

#include <filesystem>

#include "core/value.h"
#include "drawing/canvas.h"
#include "reports/pdf_settings.h"

namespace lad::reports {

// pdfDrawTitlePage: the dictionary's "caption", then "Дата формирования отчета:" with today,
// then its pairs "cap1"/"val1" ... as many as the edition shows.
void drawTitlePage(drawing::Canvas& canvas, const Context& context, const PdfSettings& s,
                   const std::filesystem::path& imagesDir, const Map& dic);

// pdfDrawTitlePart: the caption right aligned in the left half, the value in bold from the
// middle; the y of the next pair.
double drawTitlePart(drawing::Canvas& canvas, const PdfSettings& s, double y,
                     const std::string& caption, const std::string& value);

}  // namespace lad::reports
