// The editor of one diary day: every field of the day with its present value, each opening its
// own editor, the photograph, and the ways to the day before, the day after and any day. Every
// way out saves what changed; a day that another browser changed meanwhile is not overwritten
// without asking.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/dates.h"
#include "core/value.h"
#include "shell/application.h"
#include "shell/diary/day_row_form.h"
#include "shell/editor/editor_view.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class DayEditor : public Screen {
 public:
  DayEditor(Application& app, ScreenHost& host, std::string gid, Date day);

  Value view() override;
  EventResult tap(std::string_view target) override;
  EventResult change(std::string_view target, const Value& value) override;
  bool closed() const override { return closed_; }

 private:
  struct OpenForm {
    std::size_t row;
    DayRowForm form;
  };

  void prepare(Date day);
  std::optional<std::size_t> rowAt(std::string_view target, std::string_view prefix,
                                   int* pos = nullptr) const;
  Map& row(std::size_t index);
  EventResult tapForm(std::string_view target);
  EventResult tapRow(std::size_t index);
  void openForm(std::size_t index, int pos);
  void pickForForm(DayRowForm::Pick pick);
  void pickDayType(std::size_t index);
  void offerEntry(std::size_t index, int pos);
  void setSource(Map& row, std::string source);
  EventResult changeNumber(Map& row, const Value& value);
  EventResult changePhoto(const Value& value);
  void pickDay();
  // Saves what changed, then goes on; asks first when the stored day changed meanwhile.
  EventResult leave(std::function<void()> then);
  bool storedDayChanged();
  EventResult write();

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  Date day_;
  List rows_;
  List listData_;
  Map stored_;  // each field's value as it was loaded
  bool storedPhoto_ = false;
  bool needSave_ = false;
  bool photoChanged_ = false;
  std::optional<Bytes> newPhoto_;
  bool hasPhoto_ = false;
  std::string photoPath_;
  std::optional<OpenForm> form_;
  PhotoPreviews previews_;
  bool closed_ = false;
};

}  // namespace lad::shell
