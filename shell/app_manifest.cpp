#include "shell/app_manifest.h"

namespace lad::shell {

namespace {

constexpr char kThemeColour[] = "#b5533c";
constexpr char kBackgroundColour[] = "#fbf6f2";

struct Shortcut {
  const char* type;
  const char* icon;
  const char* title;
  const char* subtitle;
  bool pregnancyOnly;  // contractions belong to the pregnancy editions
};

// In the order they are offered.
const Shortcut kShortcuts[] = {
    {"SCHVATKI", "icon-shvatki.png", "Схватки", "Открыть закладку", true},
    {"NEWNOTE", "icon-note.png", "Дневник", "Новая запись", false},
};

Value icon(const std::string& src, const char* sizes, const char* type) {
  Map m;
  m.set("src", src);
  m.set("sizes", sizes);
  m.set("type", type);
  return m;
}

Value shortcut(const Context& context, const Shortcut& s) {
  Map m;
  m.set("name", context.translate(s.title));
  m.set("short_name", context.translate(s.title));
  m.set("description", context.translate(s.subtitle));
  m.set("url", std::string("/?shortcut=") + s.type);
  m.set("icons", List{icon(std::string("/img/") + s.icon, "96x96", "image/png")});
  return m;
}

}  // namespace

Value webAppManifest(const Context& context) {
  const bool pregnancy = isPregnancyEdition(context.values().appid);
  const std::string name = context.translate(context.edition().caption);
  List shortcuts;
  for (const Shortcut& s : kShortcuts)
    if (pregnancy || !s.pregnancyOnly) shortcuts.push_back(shortcut(context, s));
  Map m;
  m.set("name", name);
  m.set("short_name", name);
  m.set("lang", context.values().langid == 1 ? "ru" : context.values().langid == 3 ? "fr" : "de");
  m.set("start_url", "/");
  m.set("scope", "/");
  m.set("display", "standalone");
  m.set("background_color", kBackgroundColour);
  m.set("theme_color", kThemeColour);
  m.set("icons", List{icon("/icons/icon-192.png", "192x192", "image/png"),
                      icon("/icons/icon-512.png", "512x512", "image/png"),
                      icon("/icons/icon.svg", "any", "image/svg+xml")});
  m.set("shortcuts", std::move(shortcuts));
  return m;
}

}  // namespace lad::shell
