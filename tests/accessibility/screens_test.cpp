// Every screen as it is told over the accessibility bus and reached by the keyboard alone.

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "accessibility/desktop.h"

namespace accessibility {
namespace {

enum Symbol { kTab = 0xff09, kReturn = 0xff0d, kEscape = 0xff1b };

const QString kDashboard = QStringLiteral("Durvela 2"), kTimetable = QStringLiteral("Durvela");

QString Program() {
  return QString::fromLocal8Bit(qgetenv("DURVELA"));
}

// A window, and where the keyboard stands in it.
class Screen {
 public:
  // As soon as it has so many stops, or any.
  Screen(Desktop& desktop, const QString& title, const QString& role = {}, qsizetype stops = 0)
      : desktop_(desktop), window_(desktop_.Window(title, role)) {
    if (!window_) return;
    Desktop::Until([&] {
      nodes = desktop_.Read(*window_);
      return Focused() != nullptr && (stops == 0 || stops == Stops());
    });
  }

  const Node* Focused() {
    for (const Node& node : nodes) {
      if (IsStop(node) && desktop_.IsFocused(node)) return &node;
    }
    return nullptr;
  }

  // The stops from the first on, once around.
  QStringList Ring() {
    QStringList ring;
    for (const Node* at = Focused(); at != nullptr; at = Tab()) {
      const QString stop = at->role + QStringLiteral(": ") + Name(*at);
      if (ring.contains(stop)) break;
      ring.append(stop);
    }
    return ring;
  }

  void Open(const QString& name) {
    Desktop::Until([&] {
      const Node* at = Focused();
      return at == nullptr || Name(*at) == name || Tab() == nullptr;
    });
    desktop_.Press(kReturn);
  }

  bool IsGone() {
    return Desktop::Until([&] { return !window_ || !desktop_.IsShowing(*window_); });
  }

  std::vector<Node> nodes;

 private:
  // An entry tells the focus though its list has not got it, and the text of a box takes clicks.
  static bool IsStop(const Node& node) {
    return node.focusable && node.role != u"list item" && node.role != u"label";
  }

  static QString Name(const Node& node) { return node.label.isEmpty() ? node.name : node.label; }

  qsizetype Stops() const { return std::count_if(nodes.begin(), nodes.end(), IsStop); }

  // Where the keyboard stands after Tab. A picker has a stop for each of its parts.
  const Node* Tab() {
    const Node* const before = Focused();
    if (before == nullptr || Stops() == 1) return before;
    for (bool inside = true; inside;) {
      const int caret = desktop_.CaretOf(*before);
      desktop_.Press(kTab);
      inside = false;
      Desktop::Until([&] {
        const Node* now = Focused();
        inside = now == before && desktop_.CaretOf(*before) != caret;
        return inside || (now != nullptr && now != before);
      });
    }
    return Focused();
  }

  Desktop& desktop_;
  std::optional<Node> window_;
};

// From the dashboard on: what is pressed in one window, and the title of the next.
using Way = std::vector<std::pair<QString, QString>>;

struct Row {
  Way way;
  QString role;
  QStringList ring;
};

const QStringList kOk = {"push button: OK"};
const Row kRows[] = {
    {{},
     "frame",
     {"push button: What is Durvela", "push button: Timetable", "push button: About us",
      "push button: Calculation of Durvela", "push button: Products", "push button: Sitara Desk",
      "push button: Yama Ghantak", "push button: Gulika Kaal"}},
    {{{"What is Durvela", "What is Durvela"}}, "dialog", kOk},
    {{{"Calculation of Durvela", "Calculation of Durvela"}}, "dialog", kOk},
    {{{"Products", "Products"}}, "dialog", kOk},
    {{{"Sitara Desk", "Sitara Desk"}}, "dialog", kOk},
    {{{"Yama Ghantak", "Yama Ghantak"}}, "dialog", kOk},
    {{{"Gulika Kaal", "Gulika Kaal"}}, "dialog", kOk},
    {{{"About us", "About Durvela"}}, "frame", {"push button: OK", "push button: System Info..."}},
    {{{"About us", "About Durvela"}, {"System Info...", "Durvela"}}, "alert message", kOk},
    {{{"Timetable", kTimetable}},
     "frame",
     {"spin box: Starting Date", "spin box: Ending Date", "spin box: Time",
      "push button: Edit Place", "push button: Save as Default", "push button: < Quick View",
      "push button: Generate Report >", "push button: Minimise", "push button: Close",
      "scroll bar: Rows of the page"}},
    {{{"Timetable", kTimetable}, {"Edit Place", "Select City and Press Enter/Double Click"}},
     "dialog",
     {"text: City", "list: Places", "combo box: Country"}},
    {{{"Timetable", kTimetable}, {"Generate Report >", "Durvela - Print Preview"}},
     "frame",
     {"combo box: Page", "push button: >>", "push button: Print this page",
      "push button: Print All", "push button: »", "push button: <<"}},
};

TEST(Screens, TellTheirControlsAndLeadTheKeyboardAround) {
  for (const Row& row : kRows) {
    Desktop desktop(Program());
    QString title = kDashboard;
    for (const auto& [control, next] : row.way) {
      Screen(desktop, title).Open(control);
      title = next;
    }
    SCOPED_TRACE(title.toStdString());
    Screen screen(desktop, title, row.role, row.ring.size());
    ASSERT_EQ(screen.Ring().join(u'\n').toStdString(), row.ring.join(u'\n').toStdString());
    for (const Node& node : screen.nodes) {
      EXPECT_TRUE(!node.name.isEmpty() || node.role == u"panel") << node.role.toStdString();
    }
    if (row.way.empty()) continue;
    desktop.Press(kEscape);
    EXPECT_TRUE(screen.IsGone());
  }
}

// Without a wait for the window, which stays open.
TEST(Screens, OpenByAnAction) {
  Desktop desktop(Program());
  const Screen dashboard(desktop, kDashboard);
  for (const Node& node : dashboard.nodes) {
    const bool tile = node.focusable && node.name == u"Gulika Kaal";
    EXPECT_TRUE(!tile || desktop.Act(node));
  }
  EXPECT_TRUE(desktop.Window(QStringLiteral("Gulika Kaal")).has_value());
}

}  // namespace
}  // namespace accessibility
