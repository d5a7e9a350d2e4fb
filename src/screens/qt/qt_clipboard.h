// The clipboard of the screen.
#pragma once

#include "forms/screen_services.h"

namespace screens::qt {

class QtClipboard : public forms::Clipboard {
 public:
  // As dots; false for no picture too.
  bool SetPicture(const forms::PicturePtr& picture) override;
};

}  // namespace screens::qt
