// Relations between the bodies of a chart: friend, neutral, enemy.
#pragma once

#include "engine/divisions.h"
#include "foundation/bounded_array.h"

namespace engine {

// Characters by layer 1 to 3, body and other body, both 1 to 9 in the order Sun, Moon, Mars,
// Mercury, Jupiter, Venus, Saturn, Rahu, Ketu; '\0' for a body with itself.
//   layer 1, natural: '2' friend, '1' neutral, '0' enemy
//   layer 2, temporal: '2' friend, '0' enemy, by the distance of their signs
//   layer 3, compound: '3' great friend, '2' friend, '1' neutral, '0' enemy, '4' great enemy
using RelationRow = foundation::BoundedArray<char, 1, 9>;
using RelationLayer = foundation::BoundedArray<RelationRow, 1, 9>;
using RelationTable = foundation::BoundedArray<RelationLayer, 1, 3>;

// Uses the rashi column of the wide divisions.
RelationTable Maitri(const DivTable& divisions);

}  // namespace engine
