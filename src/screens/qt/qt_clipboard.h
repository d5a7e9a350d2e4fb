// The system clipboard.
#pragma once

#include "forms/screen_services.h"

namespace screens::qt {

class QtClipboard : public forms::Clipboard {
 public:
  // Sets the picture as pixels. Returns false on failure and for a null picture.
  bool SetPicture(const forms::PicturePtr& picture) override;
};

}  // namespace screens::qt
