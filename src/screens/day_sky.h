// The picture behind the dashboard.
#pragma once

#include "forms/picture.h"
#include "screens/day_scene.h"

namespace screens {

// The sky from night to dawn over the earth, with the day as an arc of eight; the arc is round
// but in windows higher than wide. Width and height are logical pixels.
forms::PicturePtr SkyPicture(const DayScene& scene, double width, double height);

}  // namespace screens
