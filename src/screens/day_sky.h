// The picture behind the dashboard.
#pragma once

#include "forms/picture.h"
#include "screens/day_scene.h"

namespace screens {

// A sky from night to dawn above the earth, with the day as an arc of eight parts, stretched
// upwards in tall windows. Width and height are in logical pixels.
forms::PicturePtr SkyPicture(const DayScene& scene, double width, double height);

}  // namespace screens
