// Reports in dots and on paper, by the toolkit.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "report/reporting.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_printer.h"

namespace screens::qt {
namespace {

using foundation::DateFromParts;

// A report that draws as the program does.
struct Printing {
  Printing(const QString& file, foundation::DateTime end) : printer(file) {
    MakeReport({DateFromParts(2011, 1, 1), end, 0.5, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi",
                "India", fakes.status},
               preview, services);
  }
  ~Printing() { host.Unload(preview); }

  report::Reporting fakes;
  QtHost host;
  QtRasteriser rasteriser;
  QtPrinter printer;
  report::Services services{fakes.settings, fakes.session, fakes.boxes, fakes.yielder,
                            host,           rasteriser,    printer};
  report::frmSPkun preview{services};
};

TEST(Printing, GivesASheetForEachMonth) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("quarter.pdf"));
  Printing printing(file, DateFromParts(2011, 3, 31));
  printing.preview.cmdPrint_Click();
  EXPECT_TRUE(printing.fakes.boxes.shown.empty());
  QFile pdf(file);
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_EQ(pdf.readAll().count("/Type /Page\n"), 3);  // and no blank sheet behind them
}

TEST(Printing, TellsThatItCannotPrint) {
  Printing printing(QStringLiteral("/nowhere/at/all.pdf"), DateFromParts(2011, 1, 2));
  printing.preview.cmdPrintPage_Click();
  EXPECT_EQ(printing.fakes.boxes.shown.at(0).text, "Printing Cancelled: Path/File access error");
}

}  // namespace
}  // namespace screens::qt
