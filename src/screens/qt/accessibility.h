// Tells assistive programs what the painted controls are.
#pragma once

namespace screens::qt {

// Once, before the first window.
void InstallAccessibility();

}  // namespace screens::qt
