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

TEST(AppManifest, NamesTheEditionAndOffersItsShortcuts) {
  const Value pregnancy = manifestOf(1, 1);
  EXPECT_EQ(pregnancy["name"].text(), "Ладанея");
  EXPECT_EQ(pregnancy["lang"].text(), "ru");
  EXPECT_EQ(shortcutUrls(pregnancy),
            (std::vector<std::string>{"/?shortcut=SCHVATKI", "/?shortcut=NEWNOTE"}));
  const Value& first = pregnancy["shortcuts"].asList()->front();
  EXPECT_EQ(first["name"].text(), "Схватки");
  EXPECT_EQ(first["description"].text(), "Открыть закладку");

  EXPECT_EQ(manifestOf(14, 1)["name"].text(), "Ладанея 3D");
  EXPECT_EQ(shortcutUrls(manifestOf(14, 1)).size(), 2u);

  const Value child = manifestOf(2, 3);
  EXPECT_EQ(child["name"].text(), "Крохомир");
  EXPECT_EQ(child["lang"].text(), "fr");
  EXPECT_EQ(shortcutUrls(child), std::vector<std::string>{"/?shortcut=NEWNOTE"});
  EXPECT_EQ(manifestOf(3, 2)["lang"].text(), "de");
}

}  // namespace
}  // namespace lad::shell
