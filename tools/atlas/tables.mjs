// Shared by the scripts in this folder: the project's tab-separated tables, and grouping.
import { readFileSync, writeFileSync } from 'node:fs';

// The rows of a table as objects with the names of its header line.
export function readTable(path) {
  const [header, ...lines] = readFileSync(path, 'utf8').trimEnd().split('\n');
  const names = header.split('\t');
  return lines.map((line) => {
    const fields = line.split('\t');
    return Object.fromEntries(names.map((name, i) => [name, fields[i] ?? '']));
  });
}

// Groups items by key, keeping their order.
export function groupBy(items, keyOf) {
  const groups = new Map();
  for (const item of items) {
    const key = keyOf(item);
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(item);
  }
  return groups;
}

export const here = (path) => new URL(path, import.meta.url);
export const placesFolder = here('../../data/atlas/places/');
export const countryMap = readTable(here('country_map.tsv'));

// Puts lines into a document, between <!-- name --> and <!-- end -->.
export function fillDocument(path, name, lines) {
  const block = new RegExp(`(?<=<!-- ${name} -->\n)[^]*?(?=<!-- end -->)`);
  writeFileSync(path, readFileSync(path, 'utf8').replace(block, `${lines.join('\n')}\n`));
}
