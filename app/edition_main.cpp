// main() of one edition; the build fixes LADANEYA_APPID for each executable.
#include <cstdio>

#include "app/book.h"
#include "app/cli.h"
#include "app/report.h"
#include "app/serve.h"
#include "app/sync.h"
#include "core/edition.h"

int main(int argc, char** argv) {
  const lad::Edition& edition = *lad::editionFor(LADANEYA_APPID);
  std::string error;
  auto command = lad::app::parseCommandLine({argv + 1, argv + argc}, &error);
  if (!command) {
    std::fprintf(stderr, "%s: %s\n\n%s", edition.program, error.c_str(),
                 lad::app::usage(edition.program).c_str());
    return 2;
  }
  switch (command->kind) {
    case lad::app::Command::kHelp:
      std::printf("%s %s, %s\n\n%s", edition.program, LADANEYA_VERSION, edition.caption,
                  lad::app::usage(edition.program).c_str());
      return 0;
    case lad::app::Command::kVersion:
      std::printf("%s %s\n", edition.program, LADANEYA_VERSION);
      return 0;
    case lad::app::Command::kServe: {
      auto options = command->serve;
      if (options.webDir.empty()) options.webDir = LADANEYA_WEB_DIR;
      if (options.imagesDir.empty()) options.imagesDir = LADANEYA_IMAGES_DIR;
      if (options.resourcesDir.empty()) options.resourcesDir = LADANEYA_RESOURCES_DIR;
      return lad::app::serve(LADANEYA_APPID, options);
    }
    case lad::app::Command::kReport: {
      auto args = command->report;
      args.imagesDir = LADANEYA_IMAGES_DIR;
      args.resourcesDir = LADANEYA_RESOURCES_DIR;
      return lad::app::report(LADANEYA_APPID, args);
    }
    case lad::app::Command::kBook: {
      auto args = command->book;
      args.imagesDir = LADANEYA_IMAGES_DIR;
      args.resourcesDir = LADANEYA_RESOURCES_DIR;
      return lad::app::book(LADANEYA_APPID, args);
    }
    case lad::app::Command::kSync: {
      auto args = command->sync;
      args.resourcesDir = LADANEYA_RESOURCES_DIR;
      return lad::app::sync(LADANEYA_APPID, args);
    }
  }
  return 2;
}
