// The notices of the week beside a pregnancy's menu rows (the baby, the woman, the doctor): how
// many there are, the message that shows them, and the week's dismissal once they are read.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/context.h"
#include "shell/message_box.h"
#include "store/store.h"

namespace lad::shell {

// The menu rows that carry notices.
bool hasWeekNotices(int appid, int row);

// This week's notices of the row for the pregnancy; none when the week has been dismissed.
std::vector<std::string> weekNotices(Store& store, int row, const std::string& gid);

// Shows the notices under "События %d недели", numbered when there are two or more, and
// dismisses the week for the row; nullopt when there is nothing to show.
std::optional<MessageBox> readWeekNotices(Store& store, int row, const std::string& gid);

}  // namespace lad::shell
