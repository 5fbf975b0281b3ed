// The nodes of lists: rows, the lists that hold them, section titles and texts. Each node is
// one struct; only its named keys reach the browser.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::shell {

struct RowView {
  static constexpr std::string_view kKind = "row";
  std::string id;
  std::string icon;
  std::string caption;
  std::string comment;
  std::string badge;
  std::string badgeTarget;  // set: the badge is a button of its own
  bool enabled = true;
  std::optional<bool> checked;  // set: the row is a switch
  // Set on a row that a swipe to the left offers to delete: the tap target and its caption.
  std::string deleteTarget;
  std::string deleteCaption;

  Value toValue() const;
};

struct ListView {
  static constexpr std::string_view kKind = "list";
  List rows;  // RowView values

  Value toValue() const;
};

struct SectionView {
  static constexpr std::string_view kKind = "section";
  std::string caption;

  Value toValue() const;
};

struct TextView {
  static constexpr std::string_view kKind = "text";
  std::string text;
  std::string id;            // empty: none
  std::optional<int> regim;  // 1 normal, 2 a hint (dimmed), 3 an alarm

  Value toValue() const;
};

// An address of this server for another app to open: the browser puts its own origin before
// the path, shows it whole, copies it and opens it as a subscription.
struct AddressView {
  static constexpr std::string_view kKind = "address";
  std::string path;
  std::string copy;       // the copy button's caption
  std::string subscribe;  // the subscribe link's caption

  Value toValue() const;
};

}  // namespace lad::shell
