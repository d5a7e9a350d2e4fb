// The print preview in its window: focus, pages as pixels, printing.

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "report/page_files.h"
#include "screens/previewing.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_printer.h"
#include "support/full_disk.h"
#include "support/test.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;
using foundation::DateFromParts;

// A report from 1 January 2011, printed to a PDF file if it is named.
struct Printing : PreviewingWith<QtHost, QtRasteriser, QtPrinter> {
  explicit Printing(foundation::DateTime end, const QString& file = {}) : PreviewingWith(file) {
    Make(DateFromParts(2011, 1, 1), end);
  }
  ~Printing() { host.Unload(preview); }

  std::string FirstMessage() const { return boxes.shown.at(0).text; }
};

QByteArray BytesOf(const QString& file) {
  QFile pdf(file);
  EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
  return pdf.readAll();
}

TEST(PreviewWindow, MovesTheFocusOutOfItsPanelWhenThatCloses) {
  Printing printing(DateFromParts(2011, 1, 1));
  printing.preview.cmdShow_Click();
  FormWindow& window = printing.host.WindowOf(printing.preview);
  window.Mirror();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* const list = window.findChild<QWidget*>(u"lstPage"_s);
  list->setFocus();
  ASSERT_TRUE(list->hasFocus());
  window.findChild<QAbstractButton*>(u"cmdHide"_s)->click();
  EXPECT_EQ(window.focusWidget()->objectName(), u"cmdShow");
  EXPECT_EQ(list->focusPolicy(), Qt::NoFocus);
}

TEST(PreviewWindow, DragsItsPageByTheLeftButtonWithoutAModifier) {
  Printing printing(DateFromParts(2011, 1, 1));
  FormWindow& window = printing.host.WindowOf(printing.preview);
  window.Mirror();
  auto* const page = window.findChild<QWidget*>(u"PIC"_s);
  const auto drags = [&](Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    QTest::mousePress(page, button, modifiers, {50, 50});
    const bool dragging = printing.preview.PIC.grabCursor;
    QTest::mouseRelease(page, button, modifiers, {50, 50});
    return dragging;
  };
  EXPECT_TRUE(drags(Qt::LeftButton, {}));
  EXPECT_FALSE(drags(Qt::RightButton, {}));
  for (const auto key : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    EXPECT_FALSE(drags(Qt::LeftButton, key)) << key;
  }
}

// What the sheets of a PDF file draw.
QString Drawn(const QByteArray& pdf) {
  const QByteArray before = ">>\nstream\n", unknownSize(4, '\0');
  QByteArray drawn;
  for (qsizetype at = 0; (at = pdf.indexOf(before, at)) >= 0;) {
    at += before.size();
    if (pdf[at] == 'x') drawn += qUncompress(unknownSize + pdf.mid(at));  // not a picture
  }
  return QString::fromLatin1(drawn);
}

// How much wider than high the first sheet is, in points.
double WiderThanHigh(const QByteArray& pdf) {
  const QRegularExpression box(u"/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"_s);
  const QRegularExpressionMatch size = box.match(QString::fromLatin1(pdf));
  return size.captured(1).toDouble() - size.captured(2).toDouble();
}

// A page of 909 by 682 logical pixels at the screen's resolution.
TEST(Printing, GivesAPageOfPixelsAndASheetForEachMonth) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"quarter.pdf"_s);
  Printing printing(DateFromParts(2011, 3, 31), file);
  const int ratio = qRound(qApp->devicePixelRatio());
  const forms::PicturePtr page = report::LoadPage(1);
  EXPECT_NEAR(page->width, 13635, 1);
  const forms::RasterPtr raster = DotsOf(*page);
  EXPECT_EQ(std::tuple(raster->width, raster->height), std::tuple(909 * ratio, 682 * ratio));
  printing.preview.cmdPrint_Click();
  EXPECT_TRUE(printing.boxes.shown.empty());
  const QByteArray pdf = BytesOf(file);
  EXPECT_EQ(pdf.count("/Type /Page\n"), 3);  // no blank sheet follows
  EXPECT_EQ(pdf.count("/Width " + QByteArray::number(909 * ratio)), 3);
  EXPECT_LT(WiderThanHigh(pdf), 0);
  // From the corner of the sheet, in units of 0.06 points, as wide as in the preview.
  const QString drawn = Drawn(pdf);
  EXPECT_EQ(drawn.count(u"\n0.060000000 0 0 -0.060000000 0 "_s), 3);
  const QRegularExpression placed(u"\n([0-9.]+) 0 0 [0-9.]+ 0 0 cm\n([0-9.]+) 0 0 -"_s);
  const QRegularExpressionMatch scales = placed.match(drawn);
  EXPECT_NEAR(0.06 * scales.captured(1).toDouble() * scales.captured(2).toDouble(), 13635 / 20.0,
              0.1);
}

TEST(Printing, TurnsTheSheetForAWidePage) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"wide.pdf"_s);
  QtPrinter printer(file);
  printer.SetOrientation(forms::Orientation::Landscape);
  printer.Print("wide");
  printer.EndDoc();
  EXPECT_GT(WiderThanHigh(BytesOf(file)), 0);
}

TEST(Printing, NamesAFileThatItCannotWrite) {
  Printing beginning(DateFromParts(2011, 1, 2), u"/nowhere/at/all.pdf"_s);
  beginning.preview.cmdPrintPage_Click();
  EXPECT_EQ(beginning.FirstMessage(),
            "Printing Cancelled: The file /nowhere/at/all.pdf cannot be written");

  const QTemporaryDir folder;
  const QString file = folder.filePath(u"cut.pdf"_s);
  Printing ending(DateFromParts(2011, 2, 1), file);
  const support::FullDiskScope full(4096);
  ending.preview.cmdPrint_Click();
  EXPECT_EQ(ending.FirstMessage(),
            "The file " + file.toStdString() +
                " cannot be written. Do you want to continue with the next page?");
}

struct Sheet : forms::Form {
  Sheet() : Form("Sheet", "", 6000, 4000) { picture = forms::NewPicture(6000, 4000); }
  CONTROL(PictureBox, Rule, {.place = {300, 200, 5400, 15}});
};

TEST(DirectPages, AreReplacedByAFormsImageUnlessItHasAnOffset) {
  Printing printing(DateFromParts(2011, 1, 1));
  Sheet sheet;
  const auto inset = [&](std::size_t item) {
    return std::get<forms::Inset>(printing.preview.PIC.picture->items.at(item));
  };
  for (int time = 1; time <= 2; ++time) {  // the second image replaces the first
    printing.preview.setPage(sheet);
    EXPECT_EQ(printing.preview.PIC.picture->items.size(), 2U);
    EXPECT_EQ(inset(0), (forms::Inset{sheet.picture, {}, 6000, 4000}));
    EXPECT_EQ(inset(1).width, 5400);
  }
  printing.preview.setPage2(sheet, 0, 500);
  EXPECT_EQ(printing.preview.PIC.picture->items.size(), 4U);
  EXPECT_EQ(inset(2).at, (forms::Point{0, 500}));
}

// Without a printer, the dialog prints to a file.
struct PrintDialog : testing::Test {
  PrintDialog() {
    QTimer::singleShot(0, &waiting, [this] {
      auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      for (const char* choice : {"gbPrintRange", "pageSetCombo", "reverse"}) {
        offersOtherPages |= dialog->findChild<QWidget*>(QLatin1String(choice))->isEnabled();
      }
      owner = dialog->windowHandle()->transientParent();
      device = dialog->printer();
      auto* const name = dialog->findChild<QLineEdit*>(u"filename"_s);
      proposed = name->text();
      name->setText(file);
      dialog->accept();
    });
  }
  void SetUp() override {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "would print on paper";
  }

  const QTemporaryDir folder;
  const QString file = folder.filePath(u"both.pdf"_s);
  QObject waiting;
  bool offersOtherPages = false;
  const QWindow* owner = nullptr;
  QPrinter* device = nullptr;
  QString proposed;
};

TEST_F(PrintDialog, PrintsToAFileAfterFindingNoPrinter) {
  Printing printing(DateFromParts(2011, 2, 1));
  printing.preview.cmdPrintPage_Click();
  EXPECT_EQ(printing.FirstMessage(), "Printing Cancelled: There is no printer");

  FormWindow& window = printing.host.WindowOf(printing.preview);
  window.findChild<QAbstractButton*>(u"cmdPrint"_s)->click();
  EXPECT_EQ(printing.boxes.shown.size(), 1U);
  EXPECT_FALSE(offersOtherPages);
  EXPECT_EQ(owner, window.windowHandle());
  const QString name = u"Durvela January 2011 to February 2011, Delhi"_s;
  EXPECT_TRUE(proposed.endsWith(u'/' + name + u".pdf"_s));
  const QByteArray pdf = BytesOf(file);
  EXPECT_EQ(pdf.count("/Type /Page\n"), 2);
  const QByteArray title = QStringEncoder(QStringEncoder::Utf16BE).encode(name);
  EXPECT_EQ(pdf.count(title), 1);
}

TEST_F(PrintDialog, NamesAFileThatTakesNoMorePages) {
  QtPrinter printer;
  printer.AskUser();
  printer.Print("one");
  printer.NewPage();
  device->paintEngine()->end();
  printer.Print("two");
  EXPECT_EQ(support::FailureOf([&] { printer.NewPage(); }),
            "The file " + file.toStdString() + " cannot be written");
  printer.EndDoc();
}

}  // namespace
}  // namespace screens::qt
