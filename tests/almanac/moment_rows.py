#!/usr/bin/env python3
"""Prints a row of known_moments.inc, or checks the existing rows.

    moment_rows.py 18 11 1990 6 11 25  28.40N 77.13E 82.30E
    moment_rows.py --check

Arguments: day, month, year, hour, minute, second; latitude, longitude and the zone's meridian in
degrees.minutes. Moon, Sun and ayanamsa are those of tests/engine/chart_rows.py in mode 0 with the
mean node. The rest follows from them by the almanac's definitions and shares no code with the
program.
"""
import sys
from datetime import datetime, timedelta
from math import ceil
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "../engine"))
from chart_rows import POSITIONS, main, positions, zone_hours  # noqa: E402

MONTHS = ("PAUSA MAGHA PHALGUNA CHAITRA VAISAKHA JYAISTHA ASADHA SRAVANA BHADRA ASVINA KARTIKA "
          "MARGSHIRSH").split()
SEASONS = "VASANT GRISHMA VARSHA SHARAD HEMANT SHISHIR".split()


def sky(at, zone):
    """Moon, Sun and ayanamsa in degrees."""
    clock = at.day, at.month, at.year, at.hour, at.minute, at.second
    values = positions(clock, zone, 0, 0, 0)[0]
    return values[1 + POSITIONS.index("Moon")], values[1 + POSITIONS.index("Sun")], values[0]


def tithi(moon, sun):
    return ceil((moon - sun) % 360 / 12)


def nakshatra(moon, _):
    return int(moon * 3 / 40) + 1


def yoga(moon, sun):
    return int((moon + sun) % 360 * 3 / 40) + 1


def karana(moon, sun):
    minutes = 60 * moon - 60 * sun + (21600 if moon < sun else 0)
    return round(minutes) // 360 % 60 + 1


def end(element, at, zone):
    """The first second with a different number."""
    number = element(*sky(at, zone)[:2])
    low, high = 0, 3600
    while element(*sky(at + timedelta(seconds=high), zone)[:2]) == number:
        low, high = high, high + 3600
    while high - low > 1:
        middle = (low + high) // 2
        same = element(*sky(at + timedelta(seconds=middle), zone)[:2]) == number
        low, high = (middle, high) if same else (low, middle)
    of = at + timedelta(seconds=high)
    return f"{of.day}/{of:%B}/{of.year} {of.hour}:{of.minute}:{of.second}"


def lunar_month(at, zone):
    """The month's own, or the next one up to the first day of the month with tithi 16 or 17."""
    for day in range(1, 29 if at.month == 2 else 31):
        if tithi(*sky(at.replace(day=day), zone)[:2]) in (16, 17):
            return MONTHS[(at.month - (at.day > day)) % 12]
    return MONTHS[at.month - 1]


def era_years(at, zone):
    """Shaka and Vikram; they begin on the first day from 2 April with tithi 1, or on 1 May."""
    begin = at.replace(month=4, day=2)
    while begin.month == 4 and tithi(*sky(begin, zone)[:2]) != 1:
        begin += timedelta(1)
    year = at.year - (at.date() < begin.date())
    return [str(year - 78), str(year + 57)]


def row(at, place):
    moment, zone = datetime(at[2], at[1], at[0], *at[3:]), zone_hours(place[2])
    moon, sun, ayanamsa = sky(moment, zone)
    tropical = (sun + ayanamsa) % 360
    numbers = [tithi(moon, sun), int(moon * 0.3 % 4) + 1, yoga(moon, sun), karana(moon, sun)]
    ends = [end(element, moment, zone) for element in (tithi, nakshatra, yoga, karana)]
    calendar = ["UTTAR" if (tropical + 90) % 360 < 180 else "DAKSHIN",
                "UTTAR" if tropical < 180 else "DAKSHIN", SEASONS[int((tropical + 30) % 360 / 60)],
                lunar_month(moment, zone), *era_years(moment, zone)]
    return [at, place, [moon, sun, ayanamsa], numbers, ends, calendar]


if __name__ == "__main__":
    main(Path(__file__).parent / "known_moments.inc", row, 2, sys.argv[1:])
