#include "screens/qt/button_widget.h"

#include <utility>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

constexpr int kPadding = 6;  // pixels between edge and caption

QString NameOf(forms::Look look) {
  switch (look) {
    case forms::Look::Primary:
      return QStringLiteral("primary");
    case forms::Look::OnEarth:
      return QStringLiteral("onEarth");
    case forms::Look::OnSky:
      return QStringLiteral("onSky");
    case forms::Look::Flat:
      return QStringLiteral("flat");
    default:
      return QStringLiteral("plain");
  }
}

// A dark field that lets the picture through, with an edge for the night sky.
QString OnSkyStyle() {
  constexpr double kField = 0.65, kEdge = 0.4;
  return QStringLiteral(
             "QPushButton[look=onSky] { background: %1; color: %2;"
             " border: 1px solid %6; border-radius: 12px; }"
             "QPushButton[look=onSky]:hover { background: %3; }"
             "QPushButton[look=onSky]:pressed { background: %4; }"
             "QPushButton[look=onSky]:focus { border: 2px solid %5; }")
      .arg(ToQt(palette::kNight.WithOpacity(kField)).name(QColor::HexArgb),
           ToQt(palette::kCream).name(), ToQt(palette::kNight).name(), ToQt(palette::kEarth).name(),
           ToQt(palette::kGold).name(),
           ToQt(palette::kCream.WithOpacity(kEdge)).name(QColor::HexArgb));
}

}  // namespace

ButtonWidget::ButtonWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QPushButton(parent), ControlView(control, std::move(dispatch)) {
  setAutoDefault(true);  // Enter presses it while it has the focus
  setProperty("look", NameOf(control.look));
  connect(this, &QPushButton::clicked, this, [this] {
    // A field that loses the focus commits its text.
    if (control_.tabStop) setFocus(Qt::ShortcutFocusReason);
    dispatch_(control_.onClick);
  });
  Mirror();
}

void ButtonWidget::Mirror() {
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  ApplyShared(*this, control_, PlaceInPixels(control_));
  const QString face = ToQt(now.caption).remove(u'&');
  setFont(Fitted(ToQt(now.font), face, width() - 2 * kPadding));
  if (const QString caption = ToQt(now.caption); caption != text()) setText(caption);
  setAccessibleName(face);
}

QString ButtonStyle() {
  const auto name = [](forms::Colour colour) { return ToQt(colour).name(); };
  return QStringLiteral(
             "QPushButton { background: transparent; color: %1; border: 1px solid %2;"
             " border-radius: 10px; padding: 0 4px; }"
             "QPushButton:hover { background: %3; }"
             "QPushButton:pressed { background: %4; }"
             "QPushButton:focus { border: 2px solid %5; outline: none; }"
             "QPushButton:disabled { color: %6; border-color: %4; }"
             "QPushButton[look=primary] { background: %7; color: %8; border-color: %7; }"
             "QPushButton[look=primary]:hover { background: %9; }"
             "QPushButton[look=primary]:pressed { background: %1; }")
             .arg(name(palette::kInk), name(palette::kQuiet), name(palette::kPaper),
                  name(palette::kRule), name(palette::kFocus), name(palette::kQuiet),
                  name(palette::kDurvelaOnPaper), name(palette::kCream),
                  name(palette::kDurvelaHot)) +
         QStringLiteral(
             "QPushButton[look=primary]:focus { border: 2px solid %1; }"
             "QPushButton[look=primary]:disabled { background: %2; color: %3;"
             " border-color: %2; }"
             "QPushButton[look=onEarth] { color: %4; border-color: %5; }"
             "QPushButton[look=onEarth]:hover { background: %6; }"
             "QPushButton[look=onEarth]:pressed { background: %7; }"
             "QPushButton[look=onEarth]:focus { border: 2px solid %1; }"
             "QPushButton[look=flat] { border: none; }"
             "QPushButton[look=flat]:focus { border: 2px solid %8; }")
             .arg(name(palette::kGold), name(palette::kRule), name(palette::kQuiet),
                  name(palette::kCream), name(palette::kFaintOnEarth), name(palette::kHill),
                  name(palette::kNight), name(palette::kFocus)) +
         OnSkyStyle();
}

}  // namespace screens::qt
