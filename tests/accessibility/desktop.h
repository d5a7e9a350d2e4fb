// The program as an assistive program meets it: a tree of controls on the accessibility bus, and
// the keyboard.
#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace accessibility {

// An object on the bus.
struct Reference {
  QString bus;
  QDBusObjectPath path;
};

struct Node {
  Reference at;
  QString role, name;
  QString label;  // the name of what labels it
  bool showing = false, focusable = false;
};

class Desktop {
 public:
  // Starts the program. Needs a session bus of its own.
  explicit Desktop(const QString& program);
  ~Desktop();

  // The window of that title that came last, as soon as it shows; nothing after a while.
  std::optional<Node> Window(const QString& title, const QString& role = {});

  // What shows of a window, itself first; of a long list the first entries.
  std::vector<Node> Read(const Node& window);

  // What has become of a node.
  bool IsFocused(const Node& node);
  bool IsShowing(const Node& node);
  int CaretOf(const Node& node);

  // A key of the screen's keyboard, by X11's symbol.
  void Press(int symbol);
  // Does the first action of a node. Whether the program answered.
  bool Act(const Node& node);

  // Asks some times a second, for at most ten.
  static bool Until(const std::function<bool()>& condition);

 private:
  Node Look(const Reference& at);
  std::vector<Reference> ChildrenOf(const Reference& at);
  QString LabelOf(const Reference& at);
  void Gather(const Reference& at, std::vector<Node>& into);

  QProcess program_;
  QDBusConnection bus_;
};

}  // namespace accessibility

Q_DECLARE_METATYPE(accessibility::Reference)
