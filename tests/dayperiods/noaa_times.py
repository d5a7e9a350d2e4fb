#!/usr/bin/env python3
"""Days without a sunrise or sunset, by the published formulas of the NOAA solar calculator.

Formulas: NOAA Global Monitoring Laboratory, "Solar Calculation Details" (after Jean Meeus,
Astronomical Algorithms, 1991). Shares no code with the program.
"""
from datetime import date, timedelta
from math import asin, cos, degrees, radians, sin


def julian_day(year, month, day):
    if month <= 2:
        year, month = year - 1, month + 12
    century = year // 100
    return int(365.25 * (year + 4716)) + int(30.6001 * (month + 1)) + day + 2 - century \
        + century // 4 - 1524.5


def declination(t):
    """Declination in degrees, t Julian centuries from J2000.0."""
    mean_longitude = (280.46646 + t * (36000.76983 + 0.0003032 * t)) % 360
    anomaly = radians(357.52911 + t * (35999.05029 - 0.0001537 * t))
    centre = (sin(anomaly) * (1.914602 - t * (0.004817 + 0.000014 * t))
              + sin(2 * anomaly) * (0.019993 - 0.000101 * t) + sin(3 * anomaly) * 0.000289)
    node = radians(125.04 - 1934.136 * t)
    apparent = radians(mean_longitude + centre - 0.00569 - 0.00478 * sin(node))
    mean_obliquity = 23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - t * 0.001813))) / 60) / 60
    obliquity = radians(mean_obliquity + 0.00256 * cos(node))
    return degrees(asin(sin(obliquity) * sin(apparent)))


def days_without_a_crossing(latitude, solstice):
    """First and last day around a solstice on which the Sun's centre stays up or down."""
    def stays(day):
        moment = julian_day(day.year, day.month, day.day) + 0.25  # 6h Universal Time
        return abs(latitude) + abs(declination((moment - 2451545) / 36525)) >= 90
    first = last = solstice
    while stays(first - timedelta(1)):
        first -= timedelta(1)
    while stays(last + timedelta(1)):
        last += timedelta(1)
    return first, last


if __name__ == "__main__":
    for latitude, *day in ((70, 2011, 6, 21), (75, 1987, 12, 22), (-67.5, 2012, 12, 21)):
        first, last = days_without_a_crossing(latitude, date(*day))
        print(f"{latitude}: {first} to {last}")
