#include "shell/report_panel.h"

#include <gmock/gmock.h>

#include <thread>

#include "shell/popup_menu.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/shell/application_fixture.h"

namespace lad::testing {
namespace {

using shell::PopupAnswer;
using shell::ReportJob;

// Keeps the popup a panel opens, so that the test can answer it.
struct PopupCatcher : shell::ScreenHost {
  void push(std::shared_ptr<shell::Screen>) override {}
  void openPopup(std::unique_ptr<shell::Popup> p, PopupAction a) override {
    popup = std::move(p);
    action = std::move(a);
  }
  void showMessage(shell::MessageBox) override {}
  shell::EventResult answer(int button, const std::string& choice, Value value = {}) {
    popup.reset();
    return action(PopupAnswer{button, choice, std::move(value)});
  }
  std::unique_ptr<shell::Popup> popup;
  PopupAction action;
};

class ReportPanelTest : public ApplicationTest {
 protected:
  void SetUp() override {
    launchApp(1);
    const Date first = app->context().dates().encodeDate(5, 1, 2026);
    addPregnancy(app->store(), kGid, first, "60");
    generateDiary(app->store(), kGid, first, 10, 0);
  }
  // Runs the timers the panel hands the host until the job it follows is done.
  static void follow(shell::EventResult result) {
    while (result.timer) {
      std::this_thread::sleep_for(result.timerDelay);
      result = result.timer();
    }
  }
  report::ReportRequest request(const std::filesystem::path& target) const {
    report::ReportRequest r;
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
  // One worker takes them in turn: by the time the last one ended, all had.
  EXPECT_TRUE(first->finished() && other->finished());
  EXPECT_EQ(first->state, ReportJob::State::Done);
  EXPECT_EQ(other->state, ReportJob::State::Done);
  EXPECT_EQ(broken->state, ReportJob::State::Failed);
  EXPECT_THAT(broken->error, ::testing::HasSubstr("c.pdf"));
  EXPECT_TRUE(std::filesystem::exists(dir.path() / "a.pdf"));
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "missing"));
  // A finished report is made again when asked again.
  EXPECT_NE(maker.start(request(dir.path() / "a.pdf")), first);
}

TEST_F(ReportPanelTest, TheMenuChoiceTheDayAndThePanelOfTheFinishedReport) {
  PopupCatcher host;
  shell::ReportPanel panel(*app, host);
  EXPECT_TRUE(panel.ask(kGid).ok());
  auto* menu = dynamic_cast<shell::PopupMenu*>(host.popup.get());
  ASSERT_TRUE(menu);
  std::vector<std::string> captions;
  for (const auto& item : menu->items()) captions.push_back(item.caption);
  EXPECT_THAT(captions, ::testing::ElementsAre("Вся беременность", "Отчет по давлению",
                                               "Отчет по жидкости", "Отменить"));
  EXPECT_TRUE(host.answer(3, "Отменить").ok());
  EXPECT_FALSE(panel.shown());

  panel.ask(kGid);
  host.answer(1, "Отчет по давлению");
  ASSERT_TRUE(host.popup);
  EXPECT_THAT(host.popup->view().toJson(), ::testing::HasSubstr("Укажите дату отчета"));
  // Closing the date question makes nothing.
  EXPECT_TRUE(host.answer(0, "").ok());
  EXPECT_FALSE(panel.shown());

  panel.ask(kGid);
  host.answer(1, "Отчет по давлению");
  follow(host.answer(1, "", Value("06.01.2026")));
  const Value view = panel.view();
  EXPECT_EQ(view["kind"].text(), "report");
  EXPECT_EQ(view["state"].text(), "done");
  EXPECT_EQ(view["caption"].text(), "Просмотр");
  EXPECT_EQ(view["file"].text(), "/doc/report/pressure.pdf");
  EXPECT_EQ(panel.finishedFile("pressure.pdf"), app->context().documentsDir() / "pressure.pdf");
  EXPECT_FALSE(panel.finishedFile("report.pdf"));
  EXPECT_FALSE(panel.finishedFile("../pressure.pdf"));
  panel.close();
  EXPECT_TRUE(panel.view().isNull());
  EXPECT_FALSE(panel.finishedFile("pressure.pdf"));

  // The diary report counts its days while it is made.
  panel.ask(kGid);
  follow(host.answer(0, "Вся беременность"));
  EXPECT_EQ(panel.view()["file"].text(), "/doc/report/report.pdf");
  EXPECT_GT(panel.view()["total"].intValue(), 0);
  EXPECT_EQ(panel.view()["done"].intValue(), panel.view()["total"].intValue());
}

}  // namespace
}  // namespace lad::testing
