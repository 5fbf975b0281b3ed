#include "shell/app_manifest.h"

#include <gtest/gtest.h>

#include "core/launch.h"
#include "tests/support/test_files.h"

namespace lad::shell {
namespace {

Value manifestOf(int appid, int langid) {
  lad::testing::TempDir dir;
  Context context(ContextOptions{appid, langid, dir.path(), "1.0", nullptr, {}});
  launch(context);
  return webAppManifest(context);
}

std::vector<std::string> shortcutUrls(const Value& manifest) {
  std::vector<std::string> urls;
  for (const Value& s : *manifest["shortcuts"].asList()) urls.push_back(s["url"].text());
  return urls;
}

TEST(AppManifest, EachEditionOffersItsShortcutsInItsLanguage) {
  const std::vector<std::string> both{"/?shortcut=SCHVATKI", "/?shortcut=NEWNOTE"};
  const struct {
    int appid, langid;
    const char* lang;
    std::vector<std::string> urls;
  } cases[] = {{1, 1, "ru", both},
               {14, 1, "ru", both},
               {2, 3, "fr", {"/?shortcut=NEWNOTE"}},
               {3, 2, "de", {"/?shortcut=NEWNOTE"}}};
  for (const auto& c : cases) {
    const Value manifest = manifestOf(c.appid, c.langid);
    EXPECT_EQ(manifest["lang"].text(), c.lang) << c.appid;
    EXPECT_EQ(shortcutUrls(manifest), c.urls) << c.appid;
  }
}

}  // namespace
}  // namespace lad::shell
