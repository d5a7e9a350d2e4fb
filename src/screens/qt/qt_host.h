// Shows forms in Qt windows.
#pragma once

#include <map>

#include "forms/picture_page.h"
#include "forms/screen_services.h"
#include "screens/qt/form_window.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {

// Forms must outlive the host or be unloaded before they are destroyed.
class QtHost : public forms::FormHost {
 public:
  QtHost() = default;
  ~QtHost() override;
  QtHost(const QtHost&) = delete;
  QtHost& operator=(const QtHost&) = delete;

  void Show(forms::Form& form) override;
  void ShowModal(forms::Form& form, forms::Form& owner) override;
  void Hide(forms::Form& form) override;
  bool IsShown(const forms::Form& form) const override;
  void Unload(forms::Form& form) override;
  [[noreturn]] void EndProgram() override;
  forms::DrawingTarget& TargetOf(forms::Control& pictureBox) override;
  void ForgetTarget(forms::Control& pictureBox) override { pages_.erase(&pictureBox); }

  // Shows what changed in any form.
  void MirrorAll() { MirrorOthers(nullptr); }

  // The window of a form. The first call, and the first after an unload, creates it and loads the
  // form.
  FormWindow& WindowOf(forms::Form& form);

 private:
  void MirrorOthers(const FormWindow* window);

  std::map<const forms::Form*, FormWindow*> windows_;
  std::map<forms::Control*, forms::PicturePage> pages_;
  QtTextMeasure measure_;
};

}  // namespace screens::qt
