#include "shell/book/book_screen.h"

#include <algorithm>
#include <charconv>

#include "core/text_fill.h"
#include "reports/book_layouts.h"
#include "shell/editor/editor_view.h"
#include "shell/views/book.h"

namespace lad::shell {

using namespace std::chrono_literals;

namespace {

constexpr std::string_view kPrefix = "book:";
constexpr std::string_view kLargeClose = "book:large-close";
constexpr std::string_view kEditOk = "book:edit-ok";
constexpr std::string_view kEditCancel = "book:edit-cancel";
constexpr std::string_view kSave = "book:save";
constexpr std::string_view kClose = "book:close";
constexpr std::string_view kLabel = "book:label";
constexpr std::string_view kAdd = "book:add";
// How often the browsers hear of the pages being drawn.
constexpr auto kFollowEvery = 400ms;

std::string target(std::string_view action, int number) {
  return std::string(kPrefix) + std::string(action) + ":" + std::to_string(number);
}

// "book:<action>:<number>" taken apart.
std::optional<std::pair<std::string_view, int>> parseTarget(std::string_view target) {
  if (!target.starts_with(kPrefix)) return std::nullopt;
  target.remove_prefix(kPrefix.size());
  const std::size_t colon = target.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  int number = 0;
  const char* last = target.data() + target.size();
  const auto [end, ec] = std::from_chars(target.data() + colon + 1, last, number);
  if (ec != std::errc() || end != last) return std::nullopt;
  return std::pair{target.substr(0, colon), number};
}

std::string pictureAddress(int page, std::string_view size, int revision) {
  return std::string(kBookAddress) + "book" + std::to_string(page) + std::string(size) +
         ".jpg?r=" + std::to_string(revision);
}

// A photo of the page being edited, by its place among the page's photos as they were saved:
// the draft may have moved it.
std::string photoAddress(int page, const std::vector<reports::BookImage>& saved,
                         const std::string& image) {
  const auto found = std::ranges::find_if(
      saved, [&image](const reports::BookImage& b) { return b.image == image; });
  return std::string(kBookAddress) + "photo" + std::to_string(page) + "-" +
         std::to_string(found - saved.begin()) + ".jpg";
}

// The label under a thumbnail: the jacket, the cover, then the inner pages counted from 1.
std::string pageLabel(const Context& context, std::size_t position) {
  if (position == 0) return context.translate("Суперобложка");
  if (position == 1) return context.translate("Обложка");
  return fillIn(context.translate("Страница %d"), static_cast<std::int64_t>(position - 1));
}

std::string statusText(const Context& context, const BookState& state) {
  if (state.making)
    return state.total == 0 ? context.translate("Фотокнига формируется, подождите немного.")
                            : fillIn(context.translate("Готово страниц: %@ из %@"),
                                     {std::to_string(state.done), std::to_string(state.total)});
  if (state.drawing) return context.translate("Страница рисуется, подождите немного.");
  if (!state.error.empty())
    return context.translate(state.pages.empty()
                                 ? "Фотокнигу не удалось сформировать. Попробуйте еще раз."
                                 : "Страницу не удалось нарисовать. Попробуйте еще раз.");
  return {};
}

}  // namespace

Value BookScreen::view() {
  const Context& context = app_.context();
  BookView v;
  v.caption = context.translate("Фотокнига");
  const auto project = app_.book();
  if (!project) return v.toValue();  // the book was ended: this screen goes at the next event
  const BookState state = project->state();
  v.busy = state.making || state.drawing;
  v.status = statusText(context, state);
  for (std::size_t i = 0; i < state.pages.size(); ++i) {
    const ShownPage& shown = state.pages[i];
    const int number = shown.page.page;
    BookPageView page;
    page.id = target("page", number);
    page.label = pageLabel(context, i);
    page.picture = pictureAddress(number, "-s", shown.revision);
    if (shown.page.isimages && !v.busy) {
      page.deleteId = target("delete", number);
      page.editId = target("edit", number);
    }
    if (large_ == number)
      v.large = BookLargeView{page.label,
                              pictureAddress(number, "", shown.revision),
                              {std::string(kLargeClose), context.translate("Закрыть"), {}}};
    v.pages.push_back(std::move(page));
  }
  if (draft_) v.edit = editView(*draft_, state);
  v.addId = kAdd;
  v.addCaption = context.translate("Добавить страницу с фотографией");
  v.save = {std::string(kSave), context.translate("Сохранить"), !v.busy && !state.pages.empty()};
  v.close = {std::string(kClose), context.translate("Закрыть"), {}};
  return v.toValue();
}

BookEditView BookScreen::editView(const Draft& draft, const BookState& state) const {
  const Context& context = app_.context();
  const auto page = std::ranges::find_if(
      state.pages, [&draft](const ShownPage& p) { return p.page.page == draft.page; });
  const std::vector<reports::BookImage> saved =
      page == state.pages.end() ? std::vector<reports::BookImage>{} : page->page.picture.images;
  BookEditView v;
  v.caption = context.translate("Фотографии для этой страницы");
  const auto& images = draft.picture.images;
  for (std::size_t i = 0; i < images.size(); ++i) {
    const int index = static_cast<int>(i);
    v.photos.push_back({target("use", index), photoAddress(draft.page, saved, images[i].image),
                        images[i].use, i == 0 ? std::string() : target("earlier", index)});
  }
  v.labelId = kLabel;
  v.label = draft.picture.pagelabelbottom;
  v.placeholder = context.translate("Подпись под фотографиями");
  v.layoutsCaption = context.translate("Вариант размещения на странице");
  for (const int layout : reports::layoutChoices(reports::usedCount(images)))
    v.layouts.push_back({target("layout", layout), "imageloc-" + std::to_string(layout) + ".png",
                         layout == draft.picture.tp});
  v.ok = {std::string(kEditOk), context.translate("Готово"), {}};
  v.cancel = {std::string(kEditCancel), context.translate("Отменить"), {}};
  return v;
}

EventResult BookScreen::tap(std::string_view target) {
  if (!app_.book()) return EventResult::refused("the book was closed");
  if (target == kClose) {
    app_.endBook();
    closed_ = true;
    return {};
  }
  if (target == kSave) return save();
  if (target == kLargeClose) {
    large_.reset();
    return {};
  }
  if (target == kEditCancel) {
    draft_.reset();
    return {};
  }
  if (target == kEditOk) return finishEdit();
  const auto parsed = parseTarget(target);
  if (!parsed) return EventResult::refused("no book control " + std::string(target));
  const auto [action, number] = *parsed;
  if (action == "page" || action == "delete" || action == "edit") return tapPage(action, number);
  return tapDraft(action, number);
}

EventResult BookScreen::tapPage(std::string_view action, int number) {
  const auto project = app_.book();
  const BookState state = project->state();
  const auto shown = std::ranges::find_if(
      state.pages, [number](const ShownPage& p) { return p.page.page == number; });
  if (shown == state.pages.end())
    return EventResult::refused("no page " + std::to_string(number) + " in the book");
  if (action == "page") {
    large_ = number;
    return {};
  }
  if (action == "edit") {
    if (!shown->page.isimages) return EventResult::refused("only a picture page is edited");
    draft_ = Draft{number, shown->page.picture};
    return {};
  }
  if (auto refusal = project->deletePage(number)) return EventResult::refused(*refusal);
  if (large_ == number) large_.reset();
  return {};
}

// imageLocation: a tick or a move changes the photos in use, and the layout follows their count.
EventResult BookScreen::tapDraft(std::string_view action, int index) {
  if (!draft_) return EventResult::refused("no picture page is being edited");
  reports::PicturePage& picture = draft_->picture;
  auto& images = picture.images;
  const bool inRange = index >= 0 && static_cast<std::size_t>(index) < images.size();
  if (action == "use" && inRange) {
    images[index].use = !images[index].use;
  } else if (action == "earlier" && inRange && index > 0) {
    std::swap(images[index], images[index - 1]);
  } else if (action == "layout") {
    const auto choices = reports::layoutChoices(reports::usedCount(images));
    if (std::ranges::find(choices, index) == choices.end())
      return EventResult::refused("layout " + std::to_string(index) + " is not offered");
    picture.tp = index;
  } else {
    return EventResult::refused("no such control of the page's editor");
  }
  picture.tp = reports::snapLayout(picture.tp, reports::usedCount(images));
  return {};
}

EventResult BookScreen::finishEdit() {
  if (!draft_) return EventResult::refused("no picture page is being edited");
  const auto project = app_.book();
  if (auto refusal = project->changePicturePage(draft_->page, draft_->picture))
    return EventResult::refused(*refusal);
  draft_.reset();
  return followBook();
}

// closeOk: book.pdf is written on the worker; the report's panel follows it and offers it.
EventResult BookScreen::save() {
  const auto project = app_.book();
  if (project->state().making)
    return EventResult::refused("the book's pages are still being drawn");
  auto job = project->save();
  app_.endBook();
  closed_ = true;
  return host_.followDocument(std::move(job));
}

EventResult BookScreen::change(std::string_view target, const Value& value) {
  if (target == kLabel) {
    if (!draft_) return EventResult::refused("no picture page is being edited");
    draft_->picture.pagelabelbottom = value.text();
    return {};
  }
  if (target != kAdd) return EventResult::refused("the book has no input " + std::string(target));
  if (!app_.book()) return EventResult::refused("the book was closed");
  std::string why;
  const auto photo = pictureFromDataUrl(value.text(), &why);
  if (!photo) {
    host_.showMessage(
        MessageBox::make(app_.context(), "Не удалось прочитать фотографию", "Ошибка"));
    return {};
  }
  if (auto refusal = app_.book()->addPicturePage(*photo)) return EventResult::refused(*refusal);
  return followBook();
}

EventResult BookScreen::followBook() const {
  return shell::followBook(app_);
}

// The timer holds the book, not a screen, which may go before it.
EventResult followBook(Application& app) {
  std::weak_ptr<const BookProject> book = app.book();
  return redrawUntil(
      [book] {
        const auto project = book.lock();
        if (!project) return true;
        const BookState state = project->state();
        return !state.making && !state.drawing;
      },
      kFollowEvery);
}

}  // namespace lad::shell
