// The zone of a place: the gazetteer's, which is of March 2023, or the one whose boundaries it
// lies in.
import { readFileSync } from 'node:fs';

import { find } from 'geo-tz/all';

import { here, readTable } from './tables.mjs';

// ISO code of the country that tzdata lists a zone for. Old names of zones are not listed.
const countryOfZone = new Map(readFileSync('/usr/share/zoneinfo/zone.tab', 'utf8')
  .trimEnd().split('\n')
  .filter((line) => !line.startsWith('#'))
  .map((line) => line.split('\t'))
  .map(([iso, , zone]) => [zone, iso]));

export const decisions = readTable(here('zone_decisions.tsv'));

const fits = (pattern, text) => pattern === '*' || pattern === text;

function decisionFor({ name, iso, zone }, found) {
  return decisions.find((row) => row.iso === iso && fits(row.place, name) &&
    fits(row.gazetteer, zone) && fits(row.found, found));
}

// Boundaries are no better than a gazetteer at a border that is disputed, or nearer than the
// place's coordinates are exact. So they count only between zones of the place's own country.
function choose(place, found) {
  const decision = decisionFor(place, found.join());
  if (decision) return { zone: decision.zone, because: 'decided', decision };
  if (found.includes(place.zone)) {
    return { zone: place.zone, because: found.length === 1 ? 'same' : 'several' };
  }
  const [zone] = found;
  return found.length === 1 && countryOfZone.get(zone) === place.iso
    ? { zone, because: 'moved' }
    : { zone: place.zone, because: 'abroad' };
}

// The zone, why it was chosen, and the zones that were found by boundaries.
export function chooseZone(place) {
  const found = find(Number(place.latitude), Number(place.longitude));
  const choice = choose(place, found);
  if (!countryOfZone.has(choice.zone)) throw new Error(`${place.name}: old zone ${choice.zone}`);
  return { ...choice, found };
}
