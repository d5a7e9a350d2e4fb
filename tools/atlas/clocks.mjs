// The clocks of IANA zones from 1970 on, as the machine's tzdata has them.
import { execFileSync } from 'node:child_process';
import { existsSync } from 'node:fs';

// Minutes east of Greenwich of "+0530", "+05" or "-001730".
function minutesEast(text) {
  const [, sign, hours, minutes = '0'] = text.match(/^([+-])(\d\d)(\d\d)?/);
  return (sign === '+' ? 1 : -1) * (60 * Number(hours) + Number(minutes));
}

// Of each zone the local times from which an offset held, in order, the first "-": its clocks.
// An error for a zone that the machine lacks.
export function clocksOf(zones) {
  const names = [...new Set(zones)];
  const unknown = names.filter((zone) => !existsSync(`/usr/share/zoneinfo/${zone}`));
  if (unknown.length) throw new Error(`no such zones: ${unknown}`);
  const histories = execFileSync('zdump', ['-i', '-c', '1970,2038', ...names],
    { encoding: 'utf8', maxBuffer: 1 << 28 }).trim().split(/\n\n(?=TZ=)/);
  return new Map(histories.map((history, i) => [names[i], history.split('\n').slice(1)
    .map((line) => line.split('\t'))
    .map(([day, time, offset]) => ({ from: `${day} ${time}`, offset: minutesEast(offset) }))]));
}

// Minutes east of Greenwich on a day, "2026-01-15".
export const offsetOn = (clocks, day) =>
  clocks.findLast(({ from }) => from < day).offset;  // "-" comes before all days

export const sameClocks = (a, b) => JSON.stringify(a) === JSON.stringify(b);
