// The two print commands of the preview.

#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "screens/frmSPkun.h"

namespace screens {
namespace {

constexpr double kWidestPortrait = 21000;  // twips

// Runs statements one by one; after a failure, asks the user whether to continue.
class AskingUser {
 public:
  AskingUser(foundation::MessageBoxes& boxes, forms::Printer& printer)
      : boxes_(boxes), printer_(printer) {}

  template <typename Statement>
  void Do(Statement statement) {
    if (stopped_) return;
    try {
      statement();
    } catch (const foundation::Error& error) {
      Ask(error);
    }
  }

  bool Failed() const { return failed_; }
  bool Stopped() const { return stopped_; }

 private:
  void Ask(const foundation::Error& error) {
    failed_ = true;
    const auto answer =
        boxes_.Show(std::string(error.what()) + ". Do you want to continue with the next page?",
                    foundation::MessageIcon::Exclamation, foundation::MessageButtons::YesNo);
    if (answer == foundation::MessageAnswer::Yes) return;
    stopped_ = true;
    foundation::Resume([&] { printer_.EndDoc(); });
  }

  foundation::MessageBoxes& boxes_;
  forms::Printer& printer_;
  bool failed_ = false, stopped_ = false;
};

}  // namespace

void frmSPkun::SetOrientation() {
  services_.printer.SetOrientation(PIC.place.width > kWidestPortrait
                                       ? forms::Orientation::Landscape
                                       : forms::Orientation::Portrait);
}

// "Durvela March 2011, Delhi", or "Durvela January 2011 to March 2011, Delhi".
void frmSPkun::NameDocument(int first, int last) {
  const auto heading = [this](int number) {
    const std::string& title = PageTitle(number);
    return title.substr(0, title.find(" ..P"));
  };
  std::string range = heading(first);
  if (last != first) {
    const std::string until = heading(last);
    range += " to " + until.substr(until.find(' ') + 1);
  }
  services_.printer.SetDocumentName(city.empty() ? range : range + ", " + city);
}

// In place of the slogan, which returns for 0.
void frmSPkun::TellPrinted(int pages) {
  lblProduct.caption = pages == 0   ? std::string(preview_layout::kSlogan)
                       : pages == 1 ? "1 page printed"
                                    : foundation::NumberText(pages) + " pages printed";
}

void frmSPkun::cmdPrint_Click() {
  forms::Printer& printer = services_.printer;
  AskingUser user(services_.boxes, printer);
  const int pages = cmbPage.items->ListCount();
  foundation::Resume([&] { NameDocument(1, pages); });
  user.Do([&] { printer.AskUser(); });
  user.Do([&] { SetOrientation(); });
  user.Do([&] { printer.Print(""); });
  // ShowPage sets i to the number in the title, which two pages may share: `printed` bounds the
  // loop.
  int printed = 0;
  for (std::int16_t i = 1; !user.Stopped() && i <= pages && printed < pages; ++i, ++printed) {
    user.Do([&] { ShowPage(i, PageName(i), PageTitle(i), true); });
    user.Do([&] { printer.NewPage(); });
  }
  user.Do([&] { printer.EndDoc(); });
  TellPrinted(user.Failed() ? 0 : printed);
}

void frmSPkun::cmdPrintPage_Click() {
  forms::Printer& printer = services_.printer;
  const int number = cmbPage.items->ListIndex() + 1;
  foundation::Resume([&] { NameDocument(number, number); });
  foundation::Resume([&] { SetOrientation(); });
  foundation::Resume([&] { printer.Print(""); });
  try {
    auto page = static_cast<std::int16_t>(number);
    ShowPage(page, PageName(number), PageTitle(number), true);
    printer.EndDoc();
    TellPrinted(1);
  } catch (const foundation::Error& error) {
    TellPrinted(0);
    foundation::Resume([&] { printer.EndDoc(); });
    services_.boxes.Show("Printing Cancelled: " + std::string(error.what()),
                         foundation::MessageIcon::Exclamation);
  }
}

}  // namespace screens
