// Exposes the painted controls to assistive technology.
#pragma once

namespace screens::qt {

// Call once, before the first window.
void InstallAccessibility();

}  // namespace screens::qt
