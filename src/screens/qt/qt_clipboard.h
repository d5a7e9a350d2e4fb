// The system clipboard.
#pragma once

#include "forms/screen_services.h"

namespace screens::qt {

class QtClipboard : public forms::Clipboard {
 public:
  // Stores pixels. Returns false for a null picture too.
  bool SetPicture(const forms::PicturePtr& picture) override;
};

}  // namespace screens::qt
