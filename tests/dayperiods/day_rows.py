#!/usr/bin/env python3
"""Prints a row of known_days.inc, or checks the existing rows.

    day_rows.py 5 3 2011 12 0 0  28.40N 77.13E 82.30E
    day_rows.py --check

Arguments: day, month, year, hour, minute, second; latitude, longitude and the zone's meridian in
degrees.minutes. Sun and hour angle follow the low-precision formula of the Explanatory Supplement
to the Astronomical Almanac (1992, chapter 9), in degrees; the minute, the Hindu day and the eighths
follow the rules of docs/behaviour.md. Shares no code with the program.
"""
import sys
from datetime import date, timedelta
from math import acos, asin, cos, degrees, floor, radians, sin
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "../engine"))
from chart_rows import decoded, main, zone_hours  # noqa: E402

DURVELA = 8, 2, 7, 5, 6, 4, 3  # by weekday, Sunday first; the next two likewise
GULIK = 7, 6, 5, 4, 3, 2, 8
YUM = 5, 4, 3, 2, 8, 7, 6


def text_of(day, latitude, longitude, zone, sign):
    """Clock time of sunrise (sign 1) or sunset (-1), as the program writes it."""
    if abs(latitude) > 63:
        return "{invalid latitude}"
    ut, before = 0, 180
    while abs(ut - before) > 0.05:
        before = ut
        t = ((day - date(2000, 1, 1)).days - 0.5 + ut / 360) / 36525
        anomaly = radians(357.528 + 35999.050 * t)
        centre = 1.915 * sin(anomaly) + 0.020 * sin(2 * anomaly)
        ecliptic = radians(280.460 + 36000.770 * t + centre)
        equation = -centre + 2.466 * sin(2 * ecliptic) - 0.053 * sin(4 * ecliptic)
        declination = asin(sin(radians(23.4393 - 0.0130 * t)) * sin(ecliptic))
        angle = degrees(acos((sin(radians(-0.833)) - sin(declination) * sin(radians(latitude)))
                             / (cos(declination) * cos(radians(latitude)))))
        angle -= 180 if angle > 90 else 0
        ut = (ut - (ut - 180 + equation + longitude + sign * angle)) % 360
    hours = ut / 15 + zone
    hours += 24 if hours < 0 else -24 if hours > 24 else 0
    minutes = floor(60 * (hours % 1) + 0.5)
    return f"{int(hours)}:{minutes:02}".zfill(5) if minutes < 60 else f"{int(hours) + 1}:0"


def hours_of(text):
    hour, minute = map(int, text.split(":")) if ":" in text else (24, 0)
    return 0.0 if hour > 23 else hour + minute / 60


def clock(hours):
    seconds = floor(hours) * 3600 + floor((hours - floor(hours)) * 60) * 60
    seconds += floor(((hours - floor(hours)) * 60 % 1) * 60 + 0.5)
    return f"{seconds // 3600 % 24:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"


def row(at, place):
    latitude, longitude = decoded(place[0], "NS"), decoded(place[1], "EW")
    zone, today = zone_hours(place[2]), date(at[2], at[1], at[0])
    day = today

    def texts():
        return [text_of(day, latitude, longitude, zone, sign) for sign in (1, -1)]
    rise, set_ = map(hours_of, texts())
    if rise > set_:
        rise, set_ = rise - 12, set_ + 12
    number = at[0]
    moment, sunrise = 3600 * at[3] + 60 * at[4] + at[5], round(rise % 24 * 3600)
    if moment < sunrise:
        number, day = number - 1, today - timedelta(1)
        rise, set_ = map(hours_of, texts())
    mean = zone - longitude * 4 / 60
    bounds, eighth = [rise], (set_ - rise) / 8
    for _ in range(8):
        bounds.append(bounds[-1] + eighth)
    weekday = today.isoweekday() % 7
    begin = [bounds[table[weekday] - 1] for table in (DURVELA, GULIK, YUM)]
    ends = [bounds[DURVELA[weekday]], begin[1] + eighth, begin[2] + eighth]
    periods = [clock(time) for pair in zip(begin, ends) for time in pair]
    name = f"{number} {today:%B} {today.year}"
    return [at, place, [rise - mean, set_ - mean, rise, set_, name], number, texts(), periods]


if __name__ == "__main__":
    main(Path(__file__).parent / "known_days.inc", row, 2, sys.argv[1:])
