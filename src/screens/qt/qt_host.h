// Shows forms in windows of the toolkit.
#pragma once

#include <map>
#include <memory>

#include "forms/screen_services.h"
#include "screens/qt/form_window.h"

namespace screens::qt {

class QtHost : public forms::FormHost {
 public:
  void Show(forms::Form& form) override;
  void ShowModal(forms::Form& form, forms::Form& owner) override;
  void Hide(forms::Form& form) override;
  void Unload(forms::Form& form) override;
  [[noreturn]] void EndProgram() override;

  // The window of a form; made, and the form loaded, at the first call.
  FormWindow& WindowOf(forms::Form& form);

 private:
  std::map<forms::Form*, std::unique_ptr<FormWindow>> windows_;
};

}  // namespace screens::qt
