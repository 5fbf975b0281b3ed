// The list of backgrounds: a thumbnail row for each; choosing one stores it, sets the theme and
// has every page draw itself anew.
#pragma once

#include "core/context.h"
#include "shell/screen.h"

namespace lad::shell {

class BackgroundList : public Screen {
 public:
  explicit BackgroundList(Context& context) : context_(context) {}

  Value view() override;
  EventResult tap(std::string_view target) override;

  // A background was chosen.
  bool closed() const override { return closed_; }

 private:
  Context& context_;
  bool closed_ = false;
};

// The row of a background in the list ("background:3").
std::string backgroundTarget(int backgroundId);
// Stores the choice and applies it to the installation.
void changeBackground(Context& context, int backgroundId);

}  // namespace lad::shell
