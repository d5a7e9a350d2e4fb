// Describes the painted controls to assistive programs.
#pragma once

namespace screens::qt {

// Call once, before the first window.
void InstallAccessibility();

}  // namespace screens::qt
