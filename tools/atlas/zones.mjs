// Counts the places whose zone differs from the one in the built-in country table: standard time at
// the end of 2023, without daylight saving. Updates the table in docs/atlas.md.
import { readdirSync } from 'node:fs';

import { clocksOf, offsetOn } from './clocks.mjs';
import { countryMap, fillDocument, groupBy, here, placesFolder, readTable } from './tables.mjs';

const reasons = {
  Mexico: 'the row is Mountain time',
  USA: 'one row, Central time',
  Indonesia: 'one row, Central time',
  Turkey: "east of the row's hour since 2016",
  Russia: 'one row, Moscow',
  Australia: 'one row, Eastern time',
  Canada: 'one row, Eastern time',
  Eire: 'the row is summer time',
};

// Minutes east of Greenwich for a zone text (hours.minutes, minus is east).
function tableOffset(text) {
  const [, sign, hours, minutes = '0'] = text.match(/^([+-]?)(\d+)(?:\.(\d+))?$/);
  return (sign === '-' ? 1 : -1) * (60 * Number(hours) + Number(minutes));
}

// Daylight saving puts clocks forward, so the lesser offset of July and December 2023 is standard.
const standardOffset = (clocks) =>
  Math.min(...['2023-07-01', '2023-12-31'].map((day) => offsetOn(clocks, day)));

const tableZones = new Map(countryMap.flatMap(({ file_name: names, table_zone: zone }) =>
  names.split('|').map((name) => [name, zone])));
const places = readdirSync(placesFolder).flatMap((file) =>
  readTable(new URL(file, placesFolder)).map(({ zone }) => ({ file: file.slice(0, -4), zone })));
const offsets = new Map([...clocksOf(places.map(({ zone }) => zone))]
  .map(([zone, clocks]) => [zone, standardOffset(clocks)]));
const isOff = ({ file, zone }) => tableOffset(tableZones.get(file)) !== offsets.get(zone);

const off = places.filter(isOff);
const all = groupBy(places, ({ file }) => file);
const ofFile = [...groupBy(off, ({ file }) => file)].sort(([, a], [, b]) => b.length - a.length)
  .map(([file, some]) => [file, some.length, all.get(file).length]);
for (const [file, some, of] of ofFile) console.log(`${some} of ${of}\t${file}`);

const row = ([name, some, of, why]) =>
  `| ${name} | ${some.toLocaleString('en')} | ${of.toLocaleString('en')} | ${why} |`;
const share = `${(100 * off.length / places.length).toFixed(1)} %`;
const table = [
  '| File | Places off | of | Why |', '|---|---|---|---|',
  ...ofFile.slice(0, 8).map((counts) => row([...counts, reasons[counts[0]] ?? ''])),
  row(['all', off.length, places.length, share]),
];
fillDocument(here('../../docs/atlas.md'), 'zones', table);
