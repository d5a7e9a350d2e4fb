#include "screens/qt/application.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

#include "foundation/version.h"
#include "screens/palette.h"
#include "screens/qt/accessibility.h"
#include "screens/qt/qt_painting.h"
#include "screens/signs.h"

namespace screens::qt {

void DressApplication() {
  QApplication::setApplicationName(foundation::kProgramName);
  QApplication::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                          .arg(foundation::kVersionMajor)
                                          .arg(foundation::kVersionMinor)
                                          .arg(foundation::kVersionRevision));
  QApplication::setWindowIcon(ToIcon(*ProgramSign()));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

  QFont font(QStringList{QStringLiteral("Noto Sans"), QApplication::font().family()});
  font.setPixelSize(14);
  QApplication::setFont(font);

  QPalette colours(ToQt(palette::kRule), ToQt(palette::kPaper));
  colours.setColor(QPalette::Base, ToQt(palette::kPaper));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::HighlightedText, QPalette::ToolTipText}) {
    colours.setColor(role, ToQt(palette::kInk));
  }
  colours.setColor(QPalette::Highlight, ToQt(palette::kGold));
  colours.setColor(QPalette::ToolTipBase, ToQt(palette::kPaper));
  QApplication::setPalette(colours);

  InstallAccessibility();
  foundation::SetUserNames(SystemNames());
}

Program::Program(const foundation::Clock& clock)
    : dashboard(Services{clock, settings_, session_, boxes_, browser_, host}) {}

}  // namespace screens::qt
