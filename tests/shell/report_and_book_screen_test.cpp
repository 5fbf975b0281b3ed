// Documents made on screen: the report panel's reports, made one at a time on the worker, and
// the photo book through a browser's session: the kinds, the pages as they come, a picture page
// edited, one deleted, one added from a photo, and the book saved.
#include <gmock/gmock.h>

#include <thread>

#include "shell/report_panel.h"
#include "store/day_photo.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/shell/application_fixture.h"

namespace lad::testing {
namespace {

using shell::ReportJob;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ReportPanelTest : public ApplicationTest {
 protected:
  void SetUp() override {
    launchApp(1);
    const Date first = app->context().dates().encodeDate(5, 1, 2026);
    addPregnancy(app->store(), kGid, first, "60");
    generateDiary(app->store(), kGid, first, 10, 0);
  }
  reports::ReportRequest request(const std::filesystem::path& target) const {
    reports::ReportRequest r;
    r.gid = kGid;
    r.target = target;
    return r;
  }
  static void waitFor(const ReportJob& job) {
    while (!job.finished()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  static constexpr const char* kGid = "REPORT-PROFILE";
};

TEST_F(ReportPanelTest, EqualRequestsShareOneReportAndOthersWaitTheirTurn) {
  shell::ReportMaker& maker = app->reports();
  const auto first = maker.start(request(dir.path() / "a.pdf"));
  const auto same = maker.start(request(dir.path() / "a.pdf"));
  const auto other = maker.start(request(dir.path() / "b.pdf"));
  const auto broken = maker.start(request(dir.path() / "missing" / "c.pdf"));
  EXPECT_EQ(first, same);
  EXPECT_NE(first, other);
  waitFor(*broken);
  // One worker takes them in turn: by the time the last one ended, all had, and the equal
  // requests were one job.
  EXPECT_EQ(app->waitForDocuments(), 3u);
  EXPECT_EQ(first->state, ReportJob::State::Done);
  EXPECT_EQ(other->state, ReportJob::State::Done);
  EXPECT_EQ(broken->state, ReportJob::State::Failed);
  EXPECT_THAT(broken->error, HasSubstr("c.pdf"));
  EXPECT_TRUE(std::filesystem::exists(dir.path() / "a.pdf"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "missing"));
  // A finished report is made again when asked again.
  EXPECT_NE(maker.start(request(dir.path() / "a.pdf")), first);
}

TEST_F(ReportPanelTest, TheMenuChoiceTheDayAndThePanelOfTheFinishedReport) {
  RecordingHost host;
  shell::ReportPanel panel(*app, host);
  EXPECT_TRUE(panel.ask(kGid).ok());
  ASSERT_TRUE(host.popup);
  EXPECT_TRUE(host.answer(3, "Отменить").ok());
  EXPECT_FALSE(panel.shown());

  panel.ask(kGid);
  host.answer(1, "Отчет по давлению");
  ASSERT_TRUE(host.popup);  // the date's question
  // Closing the date question makes nothing.
  EXPECT_TRUE(host.answer(0, "").ok());
  EXPECT_FALSE(panel.shown());

  panel.ask(kGid);
  host.answer(1, "Отчет по давлению");
  follow(host.answer(1, "", Value("06.01.2026")));
  const Value view = panel.view();
  EXPECT_EQ(view["state"].text(), "done");
  EXPECT_EQ(view["file"].text(), "/doc/report/pressure.pdf");
  EXPECT_EQ(panel.finishedFile("pressure.pdf"), app->context().documentsDir() / "pressure.pdf");
  EXPECT_FALSE(panel.finishedFile("report.pdf"));
  EXPECT_FALSE(panel.finishedFile("../pressure.pdf"));
  panel.close();

  // The diary report counts its days while it is made.
  panel.ask(kGid);
  follow(host.answer(0, "Вся беременность"));
  EXPECT_GT(panel.view()["total"].intValue(), 0);
  EXPECT_EQ(panel.view()["done"].intValue(), panel.view()["total"].intValue());
}

constexpr const char* kBookGid = "BOOK-PROFILE";

class BookScreenTest : public ApplicationTest {
 protected:
  void SetUp() override {
    launchApp(1);
    const DateCodec& dates = app->context().dates();
    const Date first = dates.encodeDate(5, 1, 2026);
    addPregnancy(app->store(), kBookGid, first, "60");
    // Five days of photos and nothing else: a picture page of four, then one of one.
    for (int d = 1; d <= 5; ++d) {
      const platform::Image image{320, 240, std::vector<std::uint8_t>(320 * 240 * 3, 40 * d)};
      ASSERT_TRUE(saveDayPhoto(app->context(), dates.addDays(first, d), kBookGid,
                               platform::encodeJpeg(image, 80), nullptr));
    }
    session = greetedSession();
    ASSERT_TRUE(tap(*session, "card:" + std::string(kBookGid)).ok());
  }
  void open(int kind) {
    ASSERT_TRUE(tap(*session, "menu:23").ok());
    ASSERT_EQ(session->view()["kind"].text(), "page");
    follow(tap(*session, "book:kind:" + std::to_string(kind)));
    ASSERT_EQ(session->view()["kind"].text(), "book");
  }
  std::vector<std::string> labels() {
    std::vector<std::string> out;
    const Value view = session->view();
    for (const Value& p : *view["pages"].asList()) out.push_back(p["label"].text());
    return out;
  }
  const shell::ShownPage& shown(int number) {
    pages = app->book()->state().pages;
    for (const auto& p : pages)
      if (p.page.page == number) return p;
    throw std::runtime_error("no page " + std::to_string(number));
  }
  std::unique_ptr<shell::Session> session;
  std::vector<shell::ShownPage> pages;
};

TEST_F(BookScreenTest, PagesComeWithSmallCopiesAndPicturePagesAreEditedDeletedAndAdded) {
  open(2);
  // The photos' two pages, then the weight chart of the pregnancy.
  EXPECT_THAT(labels(),
              ElementsAre("Суперобложка", "Обложка", "Страница 1", "Страница 2", "Страница 3"));
  const Value view = session->view();
  EXPECT_EQ(nth(view["pages"], 2)["picture"].text(), "/doc/book/book3-s.jpg?r=0");
  for (const char* name : {"book3-s.jpg", "book3.jpg", "photo3-3.jpg"})
    EXPECT_TRUE(app->book()->shownFile(name)) << name;
  for (const char* name :
       {"book7-s.jpg", "book3-m.jpg", "photo3-4.jpg", "photo3-x.jpg", "../book3-s.jpg"})
    EXPECT_FALSE(app->book()->shownFile(name)) << name;
  EXPECT_FALSE(tap(*session, "book:delete:1").ok());

  // Four photos of kind 2 stand in layout 41; two unticked leave the layouts of two, snapped to
  // the first; the last photo moved up and layout 22 chosen.
  ASSERT_TRUE(tap(*session, "book:edit:3").ok());
  auto layouts = [&] {
    std::vector<std::string> out;
    const Value view = session->view();
    for (const Value& l : *view["edit"]["layouts"].asList())
      out.push_back(l["id"].text() + (l["chosen"].boolValue() ? "*" : ""));
    return out;
  };
  EXPECT_THAT(layouts(), ElementsAre("book:layout:40", "book:layout:41*"));
  tap(*session, "book:use:0");
  tap(*session, "book:use:1");
  EXPECT_THAT(layouts(),
              ElementsAre("book:layout:20*", "book:layout:21", "book:layout:22", "book:layout:23"));
  EXPECT_FALSE(tap(*session, "book:layout:41").ok());
  const std::string last = shown(3).page.picture.images[3].image;
  ASSERT_TRUE(tap(*session, "book:earlier:3").ok());
  // The moved photo keeps its own picture: it is named by its place on the saved page.
  EXPECT_EQ(nth(session->view()["edit"]["photos"], 2)["picture"].text(), "/doc/book/photo3-3.jpg");
  ASSERT_TRUE(act(*session, {"book:layout:22", "book:label=Первые дни"}));
  follow(tap(*session, "book:edit-ok"));
  const shell::ShownPage& edited = shown(3);
  EXPECT_EQ(edited.page.picture.tp, 22);
  EXPECT_EQ(edited.page.picture.images[2].image, last);
  EXPECT_EQ(edited.page.picture.pagelabelbottom, "Первые дни");

  // The page of one photo goes; the others keep their files. A photo makes a new page 6.
  const auto fourth = shown(4).page.file;
  ASSERT_TRUE(tap(*session, "book:delete:4").ok());
  EXPECT_TRUE(std::filesystem::exists(fourth));
  EXPECT_THAT(labels(), ElementsAre("Суперобложка", "Обложка", "Страница 1", "Страница 2"));
  EXPECT_TRUE(change(*session, "book:add", Value("not a picture")).ok());
  EXPECT_THAT(session->view()["message"]["text"].text(), HasSubstr("фотографию"));
  tap(*session, "message:ok");
  follow(change(*session, "book:add", Value(jpegDataUrl(640, 480))));
  EXPECT_EQ(shown(6).page.picture.tp, 10);
}

TEST_F(BookScreenTest, SavingWritesBookPdfAndTheReportPanelOffersIt) {
  open(1);
  // Another browser opens the same book; closing it there ends it here too.
  auto other = greetedSession();
  tap(*other, "card:" + std::string(kBookGid));
  follow(tap(*session, "book:save"));
  EXPECT_FALSE(app->book());
  const Value panel = session->view()["report"];
  EXPECT_EQ(panel["state"].text(), "done");
  EXPECT_EQ(panel["file"].text(), "/doc/report/book.pdf");
  EXPECT_TRUE(std::filesystem::exists(app->context().documentsDir() / "book.pdf"));

  tap(*session, "report:close");
  open(3);
  ASSERT_TRUE(tap(*other, "menu:23").ok());
  follow(tap(*other, "book:kind:4"));
  EXPECT_EQ(app->book()->request().kind, 4);  // the newer book replaces the one on screen
  ASSERT_TRUE(tap(*other, "book:close").ok());
  EXPECT_NE(session->view()["kind"].text(), "book");
}

}  // namespace
}  // namespace lad::testing
