#!/usr/bin/env python3
"""Prints a row of known_charts.inc, or checks the existing rows.

    chart_rows.py 5 3 2011 6 12 9  77.13E 28.40N 82.30E  4 -1 0
    chart_rows.py --check

Arguments: day, month, year, hour, minute, second; longitude, latitude and the zone's meridian in
degrees.minutes; ayanamsa mode 0 to 7, node flag (-1 corrected, 0 mean), hours of correction.

Only the coefficients come from the program's source; rows calculated without them check those. The
arithmetic is independent and in textbook form: one sine for each term, true anomalies by the
half-angle formula, directions by atan2, divisions by their definitions.
"""
import re
import sys
from datetime import date
from math import atan, atan2, cos, degrees, pi, radians, sin, sqrt, tan
from pathlib import Path

HERE = Path(__file__).parent
POSITIONS = "Sun Mercury Venus Mars Jupiter Saturn Moon Rahu Ketu Uranus Neptune Pluto".split()
SHOWN = "Sun Moon Mars Mercury Jupiter Venus Saturn Rahu Ketu Uranus Neptune Pluto".split()


def table(file, name):
    """A braced table of the source as nested lists, with its names as strings."""
    source = re.sub("//.*", "", (HERE / "../../src/engine" / file).read_text())
    body = re.search(rf"\b{name}(?:\[\])?\s*=?\s*(\{{.*?\}});", source, re.DOTALL)[1]
    body = re.sub(r"\b[A-Za-z]\w*", lambda word: repr(word[0]), body)
    return eval(body.translate(str.maketrans("{}", "[]")))


ELEMENTS = {row[0]: row[1:] for row in table("planets.cpp", "kMeanElements")}
MOON_TERMS = table("moon_terms.h", "kMoonTerms")
CORRECTIONS = table("fixed_corrections.cpp", "kCorrections")
NODE_CORRECTIONS = {-1: table("fixed_corrections.cpp", "kCorrectedNode"),
                    0: table("fixed_corrections.cpp", "kMeanNode")}
MODES = table("ayanamsa.cpp", "kModes")[0][0]
SWING = table("nodes.cpp", "NodeSwing")[0]
NODE_DAYS = table("nodes.cpp", "NodeYearRows")
NATURAL = table("relations.cpp", "kNatural")[0]
PERTURBATIONS = {name: table("perturbation_terms.h", name) for name in
                 (planet + of for planet in ("Jup", "Sat") for of in ("DL", "DP", "DE", "DA"))}


def turns(x):
    """Turns as an angle in radians."""
    return 2 * pi * (x % 1)


def perturbations(t):
    q, p = turns(t * 3.39476 + 0.73866), turns(t * 8.43029 + 0.65965)
    s = turns(t * 1.19019 + 0.67644)
    angles = {"Q": q, "Z": q - p, "V": 5 * q - 2 * p, "W": s - q}

    def factor(name):
        if name == "U":
            return t / 5 + 0.1
        function, multiple, angle = re.fullmatch("(Sin|Cos)([2-4]?)(.)", name).groups()
        return (sin if function == "Sin" else cos)(int(multiple or 1) * angles[angle])

    sums = {}
    for name, terms in PERTURBATIONS.items():
        sums[name] = 0
        for coefficient, *factors in terms:
            for of in factors:
                coefficient *= factor(of)
            sums[name] += coefficient
    return sums


def vector(body, t, ayanamsa, series):
    """Heliocentric, in the plane of the ecliptic; the Sun's own is geocentric."""
    (l1, l0), (p1, p0), (n1, n0), (e1, e0), (i1, i0), axis = ELEMENTS[body]
    longitude, ecc = 360 * ((t * l1 + l0) % 1), t * e1 + e0
    perihelion, node, inclination = t * p1 + p0, radians(t * n1 + n0), radians(t * i1 + i0)
    if body in ("Jupiter", "Saturn"):
        name = body[:3]
        longitude += series[name + "DL"]
        ecc += series[name + "DE"] * 1e-7
        perihelion += series[name + "DP"] / ecc
        axis += series[name + "DA"] * 1e-6
    elif body == "Uranus":
        longitude -= 0.166 * sin(radians(longitude + 50 + ayanamsa))
    elif body == "Neptune":
        longitude += 0.1 - 0.1 * sin(radians(longitude / 2 - 90 + ayanamsa)) + 0.166 * sin(t - 1)
    elif body == "Pluto":
        longitude -= 0.1 * sin(radians(longitude + ayanamsa))
    mean = radians((longitude - perihelion) % 360)
    eccentric, step = mean + ecc * sin(mean), 1
    while abs(step) > 0.01:  # the theory stops at this precision
        step = (eccentric - ecc * sin(eccentric) - mean) / (1 - ecc * cos(eccentric))
        eccentric -= step
    radius = axis * (1 - ecc * cos(eccentric))
    u = 2 * atan(sqrt((1 + ecc) / (1 - ecc)) * tan(eccentric / 2)) + radians(perihelion)
    across = sin(u - node) * cos(inclination)
    return (radius * (cos(node) * cos(u - node) - sin(node) * across),
            radius * (sin(node) * cos(u - node) + cos(node) * across))


def moon_and_node(t):
    sun, perigee = 360 * ((t * 99.99826 + 0.71455) % 1), t * 0.323 + 258.76
    moon = 360 * ((t * 1336.851353 + 0.68882) % 1)
    moon_perigee = 360 * ((t * 11.298994 + 0.8663 - 3e-5 * t * t) % 1)
    node = 360 * ((0.65756 - t * 5.376495) % 1)
    arguments = moon - moon_perigee, sun - perigee, moon - sun, moon - node, node
    longitude = moon + sum(coefficient * sin(radians(sum(m * a for m, a in zip(of, arguments))))
                           for coefficient, *of in MOON_TERMS)
    return (longitude - 0.1143 * sin(radians(2 * (longitude - node))) + 0.004) % 360, node


def corrected_node(node, sun, day):
    way = (sun - node) % 180
    sign, way = (-1, way - 90) if way > 90 else (1, way)
    way = min(way, 90 - way) / 3
    low = min(int(way), 14)
    minutes = sign * (SWING[low] + (SWING[low + 1] - SWING[low]) * (way - low))
    rows = [(date(day.year + row[0], *row[1:3]).toordinal(), row[3]) for row in NODE_DAYS]
    (day0, value0), (day1, value1) = next(
        pair for pair in zip(rows, rows[1:]) if pair[0][0] < day.toordinal() <= pair[1][0])
    minutes += value0 + (value1 - value0) * (day.toordinal() - day0) / (day1 - day0)
    return abs(node + minutes / 60)


def decoded(text, letters):
    """Degrees, negative for the second letter; a longitude of whole degrees counts as minutes."""
    whole, part = re.fullmatch(rf"(\d+)[.{letters}](\d\d?)[{letters}]?", text).groups()
    if int(part) == 0 and letters == "EW":
        return (int(whole) * (10 if len(whole) == 1 else 1)) / 60
    size = int(whole) + int(part) * (10 if len(part) == 1 else 1) / 60
    return -size if letters[1] in text else size


def zone_hours(text):
    return decoded(text.rstrip("EW"), "NS") * (-1 if text.endswith("W") else 1) / 15


def ayanamsa_at(mode, day):
    year, month, start, base, rate = MODES[mode]
    return base + rate * (day - date(year, month, start)).days


def positions(at, zone, mode, node_flag, correction):
    """The 26 positions; their time in Julian centuries since 1900.0 and in days from noon UT."""
    day_of_month, month, year, hour, minute, second = at
    day = date(int(year), int(month), int(day_of_month))
    clock = hour + minute / 60 + second / 3600
    day_part = (clock - zone - 12 + correction) / 24
    centuries = (day - date(1899, 12, 31)).days / 36525 + day_part / 36525
    base = ayanamsa_at(0, day) - 17 / 3600
    ayanamsa = 0 if mode == 6 else base if mode == 0 else ayanamsa_at(mode, day)
    shift = 0 if mode == 0 else base - ayanamsa
    series, values, first_sun = perturbations(centuries), [], None
    for later, t in ((0, centuries), (1, centuries + 1 / 24 / 36525)):
        sun = vector("Sun", t, base, series)
        raw = {"Sun": degrees(atan2(sun[1], sun[0]))}
        for body in set(ELEMENTS) - {"Sun"}:
            x, y = vector(body, t, base, series)
            raw[body] = degrees(atan2(y + sun[1], x + sun[0]))
        first_sun = first_sun or raw["Sun"]
        raw["Moon"], node = moon_and_node(t)
        raw["Rahu"] = corrected_node(node, first_sun, day) if node_flag else node
        raw["Ketu"] = raw["Rahu"] + 180
        if mode in (0, 1):
            for row in CORRECTIONS + NODE_CORRECTIONS[node_flag]:
                raw[row[0]] += row[1 + later] / {"Minutes": 60, "Seconds": 3600}[row[3]]
        if mode == 1 and not later:
            raw["Sun"] += 4 / 3600
        values += [shift % 360 if later else ayanamsa]
        values += [(raw[body] + shift) % 360 for body in POSITIONS]
    return values, centuries, day_part


def rising(hours, latitude, obliquity, ayanamsa):
    """Where the ecliptic meets the eastern horizon."""
    angle, tilt = radians(15 * hours), radians(obliquity)
    slope = sin(tilt) * tan(radians(latitude)) + cos(tilt) * sin(angle)
    return (degrees(atan2(cos(angle), -slope)) - ayanamsa) % 360


def houses(hours, latitude, t, ayanamsa):
    obliquity = 23.452294 - t * 0.0130125
    east = rising(hours, latitude, obliquity, ayanamsa)
    south = rising(hours - 6, 0, obliquity, ayanamsa)  # rose at the equator six hours ago
    night = (south + 180 - east) % 360 / 3
    cusps = [east, east + night, east + 2 * night]
    cusps += [south + 180, south + 240 - night, south + 300 - 2 * night]
    cusps = [cusp % 360 for cusp in cusps + [cusp + 180 for cusp in cusps]]
    junctions = [(a + (b - a) % 360 / 2) % 360 for a, b in zip(cusps[-1:] + cusps, cusps)]
    return cusps, junctions


def wide(longitude):
    sign, within = int(longitude // 30), longitude % 30
    odd, quality, element = sign % 2 == 0, sign % 3, sign % 4
    unequal = [(5, 1), (10, 11), (18, 9), (25, 3), (30, 7)] if odd else [
        (5, 2), (12, 6), (20, 12), (25, 10), (30, 8)]

    def part(n):
        return int(n * within / 30)
    counts = [
        sign + 1, 5 if odd == (within < 15) else 4, sign + 1 + 4 * part(3), sign + 1 + 3 * part(4),
        sign + 1 + part(7) + (0 if odd else 6), 9 * sign + 1 + part(9),
        sign + 1 + part(10) + (0 if odd else 8), sign + 1 + part(12),
        (1, 5, 9)[quality] + part(16), (1, 9, 5)[quality] + part(20), (5 if odd else 4) + part(24),
        (1, 4, 7, 10)[element] + part(27), next(to for end, to in unequal if within < end),
        (1 if odd else 7) + part(40), (1, 5, 9)[quality] + part(45), sign + 1 + part(60)]
    beyond_12 = [sign + 1 + part(5), (1 if odd else 7) + part(6), (1, 9, 5)[quality] + part(8)]
    return [(count - 1) % 12 + 1 for count in counts] + beyond_12 + [(part(11) - sign) % 12 + 1]


def narrow(longitude):
    sign, within = int(longitude // 30), longitude % 30
    counts = [sign, sign + 4 * int(within / 10), longitude * 7 // 30, longitude * 9 // 30,
              sign + int(within / 3) + (0 if sign % 2 == 0 else 8), sign + int(within / 2.5),
              longitude * 16 // 30]
    return [int(count) % 12 + 1 for count in counts]


def relations(signs):
    layers = ["", "", ""]
    for i, own in enumerate(signs):
        for j, other in enumerate(signs):
            natural = NATURAL[i][j]
            temporal = "2" if (own - other) % 12 in (1, 2, 3, 9, 10, 11) else "0"
            compound = {" ": "..", "2": "13", "1": "02", "0": "41"}[natural][temporal == "2"]
            cells = "..." if i == j else natural + temporal + compound
            layers = [layer + cell for layer, cell in zip(layers, cells)]
    return layers


def row(at, place, mode, node_flag, correction):
    longitude, latitude = decoded(place[0], "EW"), decoded(place[1], "NS")
    values, t, day_part = positions(at, zone_hours(place[2]), mode, node_flag, correction)
    sidereal = (24 * day_part + 12 + 24 * ((t * 100.00214 + 0.2769) % 1) + longitude / 15) % 24
    cusps, junctions = houses(sidereal, latitude, t, values[0])
    slots = [0] + [1 + POSITIONS.index(body) for body in SHOWN]
    rows = [wide(degree) for degree in cusps[:1] + [values[slot] for slot in slots[1:10]]]
    columns = zip(*(narrow(degree) for degree in cusps[:1] + values[1:13]))
    motion = "".join("R" if values[slot + 13] < values[slot] else "." for slot in slots)
    return [at, place, mode, node_flag, correction, values, sidereal, cusps, junctions,
            [" ".join(map(str, numbers)) for numbers in rows],
            [" ".join(map(str, numbers)) for numbers in columns],
            relations([numbers[0] for numbers in rows[1:]]), motion]


def shown(value):
    if isinstance(value, (list, tuple)):
        return "{" + ", ".join(map(shown, value)) + "}"
    return f'"{value}"' if isinstance(value, str) else repr(value)


def rows_of(file):
    """The rows of a test table; braces in its strings stay."""
    text = re.sub("//.*", "", file.read_text())
    to_list = {"{": "[", "}": "]"}
    return eval("[" + re.sub(r'"[^"]*"|[{}]', lambda m: to_list.get(m[0], m[0]), text) + "]")


def is_alike(mine, known):
    if isinstance(known, list):
        return len(mine) == len(known) and all(map(is_alike, mine, known))
    return mine == known if isinstance(known, str) else abs(mine - known) < 1e-9


def main(inc, row, inputs, arguments):
    """Checks all rows of a table, whose first columns are the inputs, or prints one."""
    if arguments == ["--check"]:
        known = rows_of(inc)
        wrong = [of for of in known if not is_alike(row(*of[:inputs]), of)]
        for of in wrong:
            print("calculated otherwise here:", *of[:inputs])
        print(f"{len(known) - len(wrong)} of {len(known)} rows agree")
        sys.exit(1 if wrong else 0)
    values = [a if a[-1].isalpha() else float(a) if "." in a else int(a) for a in arguments]
    print(shown(row(values[:6], values[6:9], *values[9:])) + ",")


if __name__ == "__main__":
    main(HERE / "known_charts.inc", row, 5, sys.argv[1:])
