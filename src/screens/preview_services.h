// The services that the preview uses.
#pragma once

#include "forms/screen_services.h"
#include "foundation/machine.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

struct PreviewServices {
  foundation::Settings& settings;
  foundation::SessionTable& session;
  foundation::MessageBoxes& boxes;
  foundation::Yielder& yielder;
  forms::FormHost& host;
  const forms::Rasteriser& rasteriser;
  forms::Printer& printer;
};

}  // namespace screens
