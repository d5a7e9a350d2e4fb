// Makes data/atlas/places/*.tsv from the gazetteers and zone boundaries that `npm ci` fetches;
// see docs/atlas.md.
import { mkdirSync, rmSync, writeFileSync } from 'node:fs';

import { chooseZone } from './choose_zone.mjs';
import { gatherPlaces } from './gazetteer.mjs';
import { groupBy, placesFolder } from './tables.mjs';

const line = (place) =>
  [place.name, place.state, place.latitude, place.longitude, place.iso,
    chooseZone(place).zone, place.population].join('\t');

const files = groupBy(gatherPlaces(), ({ file }) => file);
rmSync(placesFolder, { recursive: true, force: true });
mkdirSync(placesFolder, { recursive: true });
let count = 0;
for (const [file, places] of files) {
  const header = 'place\tstate\tlatitude\tlongitude\tiso\tzone\tpopulation';
  const lines = [header, ...places.map(line).sort()];
  writeFileSync(new URL(`${file}.tsv`, placesFolder), `${lines.join('\n')}\n`);
  count += places.length;
}
console.log(`${count} places in ${files.size} files`);
