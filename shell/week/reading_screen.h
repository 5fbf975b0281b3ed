// Reading matter opened over a page, with a button that closes it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/context.h"
#include "shell/screen.h"
#include "shell/views/week.h"

namespace lad::shell {

class ReadingScreen : public Screen {
 public:
  static constexpr std::string_view kClose = "reading:close";

  ReadingScreen(std::string title, std::string closeCaption, ContentView content)
      : title_(std::move(title)), close_(std::move(closeCaption)), content_(std::move(content)) {}

  Value view() override;
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  std::string title_;
  std::string close_;
  ContentView content_;
  bool closed_ = false;
};

// The text of a content resource over the page, with the group of the week marked; `start`, the
// first day of the pregnancy, dates the week marks of its headings.
std::shared_ptr<ReadingScreen> openWeekText(const Context& context, std::string title,
                                            std::string_view resource, int week,
                                            std::optional<Date> start);

}  // namespace lad::shell
