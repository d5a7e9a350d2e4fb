// Compares the gazetteer's zone of each place with the one found by boundaries, and lists where
// they differ. Makes the table of docs/atlas.md.
import { chooseZone, decisions } from './choose_zone.mjs';
import { clocksOf, offsetOn, sameClocks } from './clocks.mjs';
import { gatherPlaces } from './gazetteer.mjs';
import { fillDocument, groupBy, here } from './tables.mjs';

const outcomes = {
  same: 'the same zone in both',
  several: "several by boundaries, GeoNames' among them: kept",
  moved: "another zone of the place's own country: taken over",
  abroad: 'a zone of another country: kept',
  decided: 'decided one by one (`zone_decisions.tsv`)',
};

const places = gatherPlaces().map((place) => ({ ...place, choice: chooseZone(place) }));
const clocks = clocksOf(places.flatMap(({ zone, choice }) => [zone, choice.zone, ...choice.found]));

const differToday = (a, b) => ['2026-01-15', '2026-07-15'].some((day) =>
  offsetOn(clocks.get(a), day) !== offsetOn(clocks.get(b), day));
const differEver = (a, b) => !sameClocks(clocks.get(a), clocks.get(b));
const countPlaces = (some, differ) => some.filter(({ zone, choice }) =>
  choice.found.some((found) => differ(zone, found))).length;

const groups = groupBy(places.filter(({ choice }) => choice.because !== 'same'),
  ({ iso, zone, choice }) =>
    [choice.because, iso, zone, choice.found.toSorted(), `-> ${choice.zone}`].join('\t'));
console.log('places\ttoday\tsince 1970\tbecause\tcountry\tGeoNames\tby boundaries\tchosen');
for (const [key, some] of [...groups].sort(([a], [b]) => (a < b ? -1 : 1))) {
  const counts = [some.length, countPlaces(some, differToday), countPlaces(some, differEver)];
  console.log(`${counts.join('\t')}\t${key}`);
}

const changed = places.filter(({ zone, choice }) => choice.zone !== zone);
const changedNow = changed.filter(({ zone, choice }) => differToday(zone, choice.zone));
const changedEver = changed.filter(({ zone, choice }) => differEver(zone, choice.zone));
const used = new Set(places.map(({ choice }) => choice.decision));
const unused = decisions.filter((row) => !used.has(row));
if (unused.length) throw new Error(`decisions for no place: ${JSON.stringify(unused)}`);

const english = (number) => number.toLocaleString('en');
fillDocument(here('../../docs/atlas.md'), 'zone check', [
  '| Zone by boundaries | Places | other hour in 2026 | other clocks since 1970 |',
  '|---|---|---|---|',
  ...Object.entries(outcomes).map(([because, words]) => {
    const some = places.filter(({ choice }) => choice.because === because);
    const counts = [some.length, countPlaces(some, differToday), countPlaces(some, differEver)];
    return `| ${[words, ...counts.map(english)].join(' | ')} |`;
  }),
  '',
  `${changed.length} places got another zone than GeoNames'; ${changedNow.length} of them have ` +
    `another hour in 2026,`,
  `${changedEver.length} have had other clocks at some time since 1970.`,
]);
