// The services that the screens use.
#pragma once

#include "forms/screen_services.h"
#include "foundation/machine.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

struct Services {
  const foundation::Clock& clock;
  foundation::Settings& settings;
  foundation::SessionTable& session;
  foundation::MessageBoxes& boxes;
  foundation::Browser& browser;
  forms::FormHost& host;
};

}  // namespace screens
