// The kinds of photo book to choose from, each as its picture ("book1.png" to "book5.png").
// Choosing one starts the profile's book and shows it.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class BookKinds : public Screen {
 public:
  BookKinds(Application& app, ScreenHost& host, std::string gid)
      : app_(app), host_(host), gid_(std::move(gid)) {}

  Value view() override;
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  bool closed_ = false;
};

}  // namespace lad::shell
