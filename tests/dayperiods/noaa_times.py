#!/usr/bin/env python3
"""Sunrise and sunset by the published formulas of the NOAA solar calculator.

Formulas: NOAA Global Monitoring Laboratory, "Solar Calculation Details" (after Jean Meeus,
Astronomical Algorithms, 1991), with a zenith distance of 90.833 degrees. Shares no code with the
program. Prints the rows of ordinary_days.inc, in decimal hours of the zone's clock time, and for
sunrise_test.cpp the days without a sunrise or sunset.
"""
from datetime import date, timedelta
from math import acos, asin, cos, degrees, radians, sin, tan


def julian_day(year, month, day):
    if month <= 2:
        year, month = year - 1, month + 12
    century = year // 100
    return int(365.25 * (year + 4716)) + int(30.6001 * (month + 1)) + day + 2 - century \
        + century // 4 - 1524.5


def sun(t):
    """Declination in degrees and equation of time in minutes, t Julian centuries from J2000.0."""
    mean_longitude = (280.46646 + t * (36000.76983 + 0.0003032 * t)) % 360
    anomaly = radians(357.52911 + t * (35999.05029 - 0.0001537 * t))
    eccentricity = 0.016708634 - t * (0.000042037 + 0.0000001267 * t)
    centre = (sin(anomaly) * (1.914602 - t * (0.004817 + 0.000014 * t))
              + sin(2 * anomaly) * (0.019993 - 0.000101 * t) + sin(3 * anomaly) * 0.000289)
    node = radians(125.04 - 1934.136 * t)
    apparent = radians(mean_longitude + centre - 0.00569 - 0.00478 * sin(node))
    mean_obliquity = 23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - t * 0.001813))) / 60) / 60
    obliquity = radians(mean_obliquity + 0.00256 * cos(node))
    y = tan(obliquity / 2) ** 2
    longitude = radians(mean_longitude)
    equation = 4 * degrees(
        y * sin(2 * longitude) - 2 * eccentricity * sin(anomaly)
        + 4 * eccentricity * y * sin(anomaly) * cos(2 * longitude)
        - y * y / 2 * sin(4 * longitude) - 1.25 * eccentricity ** 2 * sin(2 * anomaly))
    return degrees(asin(sin(obliquity) * sin(apparent))), equation


def event(year, month, day, latitude, longitude, zone, sign):
    hours = 12.0
    for _ in range(5):
        moment = julian_day(year, month, day) + (hours - zone) / 24
        declination, equation = sun((moment - 2451545) / 36525)
        lat, dec = radians(latitude), radians(declination)
        angle = degrees(acos(cos(radians(90.833)) / (cos(lat) * cos(dec)) - tan(lat) * tan(dec)))
        hours = (720 - 4 * (longitude + sign * angle) - equation) / 60 + zone
    return hours


def days_without_a_crossing(latitude, solstice):
    """First and last day around a solstice on which the Sun's centre stays up or down."""
    def stays(day):
        moment = julian_day(day.year, day.month, day.day) + 0.25  # 6h Universal Time
        return abs(latitude) + abs(sun((moment - 2451545) / 36525)[0]) >= 90
    first = last = solstice
    while stays(first - timedelta(1)):
        first -= timedelta(1)
    while stays(last + timedelta(1)):
        last += timedelta(1)
    return first, last


PLACES = [("28.40N", "77.13E", "82.30E", 28 + 40 / 60, 77 + 13 / 60, 5.5),
          ("19.04N", "72.52E", "82.30E", 19 + 4 / 60, 72 + 52 / 60, 5.5),
          ("51.30N", "0.10W", "0.0W", 51.5, -10 / 60, 0),
          ("40.42N", "74.01W", "75.0W", 40.7, -74 - 1 / 60, -5),
          ("34.05S", "151.10E", "150.0E", -34 - 5 / 60, 151 + 10 / 60, 10),
          ("63.00N", "25.30E", "30.0E", 63, 25.5, 2)]

if __name__ == "__main__":
    for lat, lon, zone, latitude, longitude, hours in PLACES:
        for year, month, day in ((2011, 3, 5), (2019, 6, 21), (2026, 11, 22)):
            rise, set_ = (event(year, month, day, latitude, longitude, hours, s) for s in (1, -1))
            print(f'{{{day}, {month}, {year}, "{lat}", "{lon}", "{zone}", {rise:.3f}, {set_:.3f}}},')
    for latitude, *day in ((70, 2011, 6, 21), (75, 1987, 12, 22), (-67.5, 2012, 12, 21)):
        first, last = days_without_a_crossing(latitude, date(*day))
        print(f"// {latitude}: {first} to {last}")
