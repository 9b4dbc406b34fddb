#!/usr/bin/python3
"""Makes every attached file of the sample exam "The World Around Us" anew, beside exam.json.

Debian packages needed: python3 python3-pil librsvg2-bin ffmpeg fonts-noto-core fonts-noto-cjk

    python3 samples/world-around-us/sources/make-files.py

Drawn by hand and kept here: cover.svg, plant.svg, circuit.svg. Computed by this script: earth.svg (circles of latitude
on a globe), rainfall.svg (bar chart), the bird call, the clip of a stick's shadow, and the two documents. All of it is
our own work. Two runs give the same files.
"""

import io
import math
import os
import random
import struct
import subprocess
import tempfile
import wave
import zipfile
from xml.sax.saxutils import escape

from PIL import Image

SOURCES = os.path.dirname(os.path.abspath(__file__))
TARGET = os.path.dirname(SOURCES)


# ---------------------------------------------------------------------------------------------------- pictures

def rasterise(svg_path, width):
    """The drawing as an RGB picture on white, `width` pixels wide."""
    png = subprocess.run(["rsvg-convert", "-w", str(width), "-b", "white", svg_path],
                         check=True, stdout=subprocess.PIPE).stdout
    return Image.open(io.BytesIO(png)).convert("RGB")


def save_jpg(source, name, width, quality=86):
    rasterise(os.path.join(SOURCES, source), width).save(
        os.path.join(TARGET, name), quality=quality, optimize=True, subsampling=0)


def save_gif(source, name, width, colours=32):
    picture = rasterise(os.path.join(SOURCES, source), width)
    picture.quantize(colours, dither=Image.Dither.NONE).save(os.path.join(TARGET, name), optimize=True)


def save_bmp16(source, name, width):
    """A bitmap of 16 colours, four bits a pixel, lines from the bottom up."""
    picture = rasterise(os.path.join(SOURCES, source), width).quantize(16, dither=Image.Dither.NONE)
    columns, rows = picture.size
    palette = (picture.getpalette() + [0] * 48)[:48]
    table = b"".join(bytes((palette[i + 2], palette[i + 1], palette[i], 0)) for i in range(0, 48, 3))
    stride = (columns + 7) // 8 * 4
    pixels = picture.tobytes()
    lines = []
    for y in range(rows - 1, -1, -1):
        line = pixels[y * columns:(y + 1) * columns] + b"\0"
        packed = bytes(line[x] << 4 | line[x + 1] for x in range(0, columns, 2))
        lines.append(packed.ljust(stride, b"\0"))
    body = b"".join(lines)
    start = 14 + 40 + len(table)
    with open(os.path.join(TARGET, name), "wb") as out:
        out.write(struct.pack("<2sIHHI", b"BM", start + len(body), 0, 0, start))
        out.write(struct.pack("<IiiHHIIiiII", 40, columns, rows, 1, 4, 0, len(body), 2835, 2835, 16, 16))
        out.write(table + body)


def write_source(name, text):
    with open(os.path.join(SOURCES, name), "w", encoding="utf-8", newline="\n") as out:
        out.write(text)


# ----------------------------------------------------------------------------------------------- the Earth

# Rough outlines as longitude, latitude; good enough for a globe of some 400 pixels.
LAND = {
    "Africa": """-6 35.8 -2 35.1 3 36.9 10 37.3 11 34 15 32.3 20 31 20 32.8 25 31.6 29 30.9 32.3 31.2 32.6 29.9 34 27
        35.6 23.9 37.2 21 37.4 18.8 39.5 15.5 43 12.4 44.5 10.4 51.2 11.8 50.8 9.5 47.9 4.3 43.5 .5 41 -2 39.2 -4.7
        39.5 -8.5 40.6 -11 40.6 -15.5 36.5 -18.5 34.8 -20.5 35.5 -23.8 32.8 -26 32 -28.9 29 -32.5 25.7 -34 20 -34.8
        18.4 -34.2 18 -32 16.5 -28.6 14.5 -22.8 11.8 -17.5 13.7 -11.5 13 -8.5 12 -5 9 -1 9.6 3.5 8.8 4.6 6 4.3 4.4 6.4
        1.2 6 -2 4.8 -7.5 4.4 -11.5 6.8 -13.3 9 -15 11 -17.4 14.7 -16.3 19 -17 21 -15 24.5 -13 27.8 -9.8 29.8
        -9.6 31.5 -7 33.5""",
    "Madagascar": "49.3 -12 50.5 -15.7 47.2 -25 45 -25.5 43.3 -22 44.4 -16.2 47 -15.2",
    "Europe and Asia": """-9 37 -9.4 38.8 -8.8 43.3 -1.8 43.4 -1.2 46 -4.7 48.4 -1.6 48.7 1.6 50.9 4.5 52.3 8.5 53.7
        8.2 57 10.6 57.6 10 54.4 14 54 19 54.4 21 55.5 22 57.5 24.3 57.3 23.5 59.2 29.5 60 22.9 59.9 21.4 61 25.3 65
        22.5 65.8 17.3 62 18.8 60 16.5 57 14.2 55.4 12.7 56 11 59 8 58 5.5 59 5 62 10 64 14.5 68 20 70 27 71 31 70.3
        41 67.3 40 66 34.5 66.5 38 64.2 44 66 44 68.5 54 68.5 60 69.5 68 68.5 67 71.5 72.8 72.8 75 72 80 73.5 87 75
        104 77.6 113 74 130 71 140 72.5 160 69.5 180 69 178 62.5 163 60 162 56 156.7 51 156 57 162 61.5 142 59 135 54.7
        141 53 140 48 132 43 127.5 40 129 36 126.3 34.5 125 39.5 121.5 39 118 39 122.5 37 119.5 35 122 31 121 28
        117 23.5 110 21 106 20 109 13 105 8.7 102.5 12.3 100 13.5 99.3 10 103.5 1.5 101 3 98.5 8 97.5 16.5 94.3 16
        94 19 91.5 22.5 87 21.5 82 16.5 80 13 79.5 10.3 77.5 8 75 12.5 72.8 19 72.5 21 69 22.5 66.8 25.2 61.5 25.1
        57 26.8 54.5 26.6 51.5 28 50 30.2 48 30 48.8 28 50.2 26.5 51 24.3 54 24.1 56.3 26.2 56.6 24.5 59.8 22.5
        57.8 19 55.2 17.5 52.2 15.6 48 14 45 12.8 43.3 12.7 42.6 16 39.2 21 37 25 34.9 28 34.8 29.5 34 28 32.6 29.9
        32.3 31.2 34.2 31.3 35.8 35 36 36.7 32.5 36 30.5 36.7 27.5 36.8 26.3 39 27 40.4 29 41.1 31.5 41.3 35 42
        38.3 40.9 41.5 41.5 39 44 37 45.3 39 47.2 35 46.3 33.5 44.6 32.5 46.1 30.7 46.4 28.6 43.8 28 42 29 41.2
        26.2 40.7 23.8 40.3 22.8 40.4 24 38 23 36.5 21.7 37 21 38.8 19.4 41.5 16 43.5 13.7 45 12.3 45.2 13.6 43.5
        16 41.9 18.4 40 17 40.4 16.6 38.5 15.7 38 16 39.9 12.3 41.8 10.3 43.8 8.5 44.3 4.8 43.4 3.1 43 3.2 41.8
        -.2 39.5 0 38.7 -2 36.8 -5.5 36.1 -7 37.1""",
    "Sicily": "12.5 38 15.5 38.2 15.1 36.7",
    "Sardinia and Corsica": "8.3 39 9.6 39.2 9.7 41 9.4 43 8.7 42 8.3 41",
    "Crete": "23.6 35.5 26.2 35.2 24.8 34.9",
    "Cyprus": "32.4 34.8 34.5 35.6 33.8 34.8",
    "Great Britain": """-5.5 50.1 1.3 51.3 1.6 52.7 .2 53 -1.6 55 -3 56 -2 57.6 -3.5 58.6 -5.2 58.4 -5.6 56.3 -3 54.8
        -3.2 53.4 -4.6 53 -4.2 52.3 -5.2 51.8 -3 51.4""",
    "Ireland": "-6.2 52.2 -10 51.6 -9.9 54.2 -7.3 55.3 -5.6 54.6",
    "Iceland": "-22.5 64 -18.7 63.4 -14 64.7 -15 66.2 -22 66.3 -24 65.5",
    "Svalbard": "12 78 16 76.7 24 78.5 27 80 18 80.2",
    "Novaya Zemlya": "52 71 57 70.6 60 74 68 76.5 66 77 57 75",
    "Greenland": "-44 60 -50 64 -54 69 -58 75 -70 77.5 -60 82 -30 83.5 -18 80 -20 74 -24 70 -33 68 -40 65",
    "Sri Lanka": "79.8 8 81.2 8.5 81.8 7 80.6 6",
    "South America": """-35 -8 -37 -12 -39 -18 -42 -23 -48.5 -26 -53.5 -34 -57 -36.5 -62 -39 -65 -43 -69 -51 -72 -53
        -75 -47 -73 -38 -70.3 -18.5 -81 -6 -77.5 7 -72 12 -62 10.6 -52 5 -50 0 -44 -2.5 -38.5 -3.5""",
    "Antarctica": """-60 -64 -58 -72 -40 -78 -25 -74 -10 -70.5 10 -70 30 -69.5 50 -66.8 70 -69 85 -66.7 110 -66 140 -66.5
        170 -72 170 -85 50 -84 -60 -84""",
}
LAKES = {
    "Caspian Sea": "47.5 43 49 46.3 53 46.8 51 44.3 53 42 53.8 37.2 50 37.4 49.3 40.5",
    "Lake Victoria": "31.8 -.5 33.8 .3 34 -1.5 33 -2.5 31.8 -2.3",
}


class Globe:
    """The Earth seen from far away, the point `longitude`, `latitude` in the middle of the disc."""

    def __init__(self, x, y, radius, longitude, latitude):
        self.x, self.y, self.radius = x, y, radius
        self.longitude, self.latitude = math.radians(longitude), math.radians(latitude)

    def at(self, longitude, latitude):
        """Point on the drawing, and how far in front of the rim it lies (negative: on the far side)."""
        a, b = math.radians(longitude) - self.longitude, math.radians(latitude)
        right = math.cos(b) * math.sin(a)
        up = math.cos(self.latitude) * math.sin(b) - math.sin(self.latitude) * math.cos(b) * math.cos(a)
        front = math.sin(self.latitude) * math.sin(b) + math.cos(self.latitude) * math.cos(b) * math.cos(a)
        if front < 0:  # what lies behind is pushed out to the rim
            length = math.hypot(right, up) or 1
            right, up = right / length, up / length
        return self.x + self.radius * right, self.y - self.radius * up, front

    def area(self, outline):
        numbers = [float(n) for n in outline.split()]
        corners = list(zip(numbers[::2], numbers[1::2]))
        points, seen = [], False
        for (lon, lat), (lon2, lat2) in zip(corners, corners[1:] + corners[:1]):
            steps = max(1, int(math.hypot(lon2 - lon, lat2 - lat) / 3))
            for i in range(steps):
                x, y, front = self.at(lon + (lon2 - lon) * i / steps, lat + (lat2 - lat) * i / steps)
                points.append("%.1f %.1f" % (x, y))
                seen = seen or front > 0
        return "M" + "L".join(points) + "z" if seen else ""

    def line(self, places):
        """Only the front part of a line."""
        path, down = [], False
        for lon, lat in places:
            x, y, front = self.at(lon, lat)
            if front > 0:
                path.append("%s%.1f %.1f" % ("L" if down else "M", x, y))
            down = front > 0
        return "".join(path)


def earth_svg():
    globe = Globe(300, 240, 210, 22, 8)
    grid = [globe.line([(lon, lat / 2) for lat in range(-180, 181, 6)]) for lon in range(-180, 180, 30)]
    grid += [globe.line([(lon, lat) for lon in range(-180, 181, 3)]) for lat in (-45, 45)]
    out = ["""<svg xmlns="http://www.w3.org/2000/svg" width="600" height="480" viewBox="0 0 600 480">
  <title>The Earth with five circles of latitude</title>
  <defs>
    <radialGradient id="sea" cx=".38" cy=".32" r=".8">
      <stop offset="0" stop-color="#CBE8F8"/><stop offset=".6" stop-color="#8CC6EA"/><stop offset="1" stop-color="#4E97CB"/>
    </radialGradient>
    <radialGradient id="shade" cx=".38" cy=".32" r=".78">
      <stop offset=".55" stop-color="#123A5C" stop-opacity="0"/><stop offset="1" stop-color="#123A5C" stop-opacity=".38"/>
    </radialGradient>
  </defs>
  <rect width="600" height="480" fill="#FFFFFF"/>
  <circle cx="300" cy="240" r="210" fill="url(#sea)"/>
  <g fill="#9CC87F" stroke="#5F9150" stroke-width="1.2" stroke-linejoin="round">"""]
    for name, outline in LAND.items():
        shape = globe.area(outline)
        if shape:
            ice = ' fill="#F4F8FA" stroke="#A9BECB"' if name in ("Antarctica", "Greenland", "Svalbard") else ""
            out.append('    <path d="%s"%s/>' % (shape, ice))
    out.append('  </g>\n  <g fill="#8CC6EA" stroke="#5F9150" stroke-width="1">')
    out += ['    <path d="%s"/>' % globe.area(outline) for outline in LAKES.values()]
    out.append('  </g>\n  <g fill="none" stroke="#FFFFFF" stroke-opacity=".55" stroke-width="1">')
    out += ['    <path d="%s"/>' % path for path in grid if path]
    out.append('  </g>\n  <circle cx="300" cy="240" r="210" fill="url(#shade)" stroke="#2C6694" stroke-width="2"/>')
    # the circles asked for, with their numbers outside the disc
    rings, tags = [], []
    for number, latitude in enumerate((66.6, 23.4, 0, -23.4, -66.6), 1):
        path = globe.line([(lon, latitude) for lon in range(-158, 203, 2)])
        # the longitude at which the circle meets the right-hand rim
        edge = math.degrees(math.acos(max(-1, min(1, -math.tan(globe.latitude) * math.tan(math.radians(latitude))))))
        x, y, _ = globe.at(22 + edge - .01, latitude)
        rings.append('    <path d="%s"/>' % path)
        polar = abs(latitude) > 60
        tag_x = x + 76 if polar else 548
        tag_y = y + (0 if not polar else -4 if latitude > 0 else 8)
        tags.append((x, y, tag_x, tag_y, number))
    out.append('  <g fill="none" stroke="#D0342C" stroke-width="3" stroke-linecap="round">\n%s\n  </g>' % "\n".join(rings))
    out.append('  <g stroke="#D0342C" stroke-width="2" stroke-dasharray="2 4" stroke-linecap="round">')
    out += ['    <path d="M%.1f %.1fL%.1f %.1f"/>' % (x + 4, y, tx - 18, ty) for x, y, tx, ty, _ in tags]
    out.append('  </g>\n  <g fill="#FFFFFF" stroke="#D0342C" stroke-width="2.5">')
    out += ['    <circle cx="%.1f" cy="%.1f" r="17"/>' % (tx, ty) for _, _, tx, ty, _ in tags]
    out.append('  </g>\n  <g font-family="Noto Sans" font-weight="bold" font-size="20" fill="#A3231C" text-anchor="middle">')
    out += ['    <text x="%.1f" y="%.1f">%d</text>' % (tx, ty + 7, n) for _, _, tx, ty, n in tags]
    out.append("  </g>\n</svg>\n")
    return "\n".join(out)


# --------------------------------------------------------------------------------------------- the bar chart

RAIN = (("Jan", 120), ("Feb", 110), ("Mar", 90), ("Apr", 45), ("May", 20), ("Jun", 10),
        ("Jul", 5), ("Aug", 10), ("Sep", 25), ("Oct", 50), ("Nov", 80), ("Dec", 115))


def rainfall_svg():
    left, bottom, step, per_mm = 62, 272, 33, 1.6
    out = ["""<svg xmlns="http://www.w3.org/2000/svg" width="480" height="320" viewBox="0 0 480 320" font-family="Noto Sans">
  <title>Rainfall in Río Alto, month by month</title>
  <rect width="480" height="320" fill="#FFFFFF"/>
  <text x="62" y="34" font-size="19" font-weight="bold" fill="#1F4E79">Rainfall in Río Alto</text>
  <text x="62" y="56" font-size="13" fill="#4A6278">millimetres in each month</text>"""]
    for mm in range(0, 121, 20):
        y = bottom - mm * per_mm
        out.append('  <path d="M%d %.1fH%d" stroke="%s" stroke-width="1"/>'
                   % (left, y + .5, left + 12 * step + 4, "#1F4E79" if mm == 0 else "#CFDCE8"))
        out.append('  <text x="%d" y="%.1f" font-size="13" fill="#4A6278" text-anchor="end">%d</text>' % (left - 8, y + 5, mm))
    for i, (month, mm) in enumerate(RAIN):
        x = left + 6 + i * step
        out.append('  <rect x="%d" y="%.1f" width="23" height="%.1f" fill="#3B82C4"/>' % (x, bottom - mm * per_mm, mm * per_mm))
        out.append('  <text x="%.1f" y="%d" font-size="13" fill="#1F4E79" text-anchor="middle">%s</text>' % (x + 11.5, bottom + 20, month))
    out.append("</svg>\n")
    return "\n".join(out)


# -------------------------------------------------------------------------------------------------- the clip

CLIP_FRAMES, CLIP_RATE = 36, 12


def clip_frame(part):
    """One picture of the day; part runs from 0 (early morning) to 1 (evening). The view is to the south."""
    height = 12 + part * (180 - 2 * 12)              # angle along the sun's path, degrees
    a = math.radians(height)
    sun_x, sun_y = 160 - 132 * math.cos(a), 132 - 108 * math.sin(a)
    warm = (1 - math.sin(a)) ** 2                    # low sun: warmer sky

    def mix(one, two):
        return "#%02X%02X%02X" % tuple(round(p + (q - p) * warm) for p, q in zip(one, two))

    top, low = mix((96, 176, 232), (120, 150, 205)), mix((226, 243, 252), (252, 205, 150))
    reach = 62 * math.cos(a) / max(math.sin(a), .2)  # where the tip of the stick's shadow falls
    tip_x, tip_y = 160 + reach, 150 + 18 * math.sin(a) + 6
    clock = 6.5 + part * 11
    hour, minute = int(clock), int(clock % 1 * 4) * 15
    return f"""<svg xmlns="http://www.w3.org/2000/svg" width="320" height="180" viewBox="0 0 320 180" font-family="Noto Sans">
  <defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{top}"/><stop offset="1" stop-color="{low}"/></linearGradient></defs>
  <rect width="320" height="180" fill="url(#sky)"/>
  <circle cx="{sun_x:.1f}" cy="{sun_y:.1f}" r="22" fill="#FFF3C2" opacity=".6"/>
  <circle cx="{sun_x:.1f}" cy="{sun_y:.1f}" r="14" fill="#FFD24D"/>
  <path d="M0 128C60 112 110 124 170 122S280 112 320 122V180H0z" fill="#8CBF73"/>
  <path d="M0 138C90 130 230 142 320 134V180H0z" fill="#74AD5E"/>
  <path d="M160 151L{tip_x:.1f} {tip_y:.1f}" stroke="#2E4A2B" stroke-width="4.5" opacity=".75"/>
  <path d="M160 150V88" stroke="#8A5A3C" stroke-width="6" stroke-linecap="round"/>
  <path d="M160 150V88" stroke="#B9835C" stroke-width="2" stroke-linecap="round"/>
  <ellipse cx="160" cy="151" rx="7" ry="3" fill="#5C8A49"/>
  <g font-size="13" font-weight="bold" fill="#1F4E79"><text x="10" y="142">E</text><text x="177" y="142" text-anchor="middle">S</text><text x="310" y="142" text-anchor="end">W</text></g>
  <rect x="6" y="6" width="56" height="20" rx="6" fill="#FFFFFF" opacity=".85"/>
  <text x="34" y="21" font-size="14" font-weight="bold" fill="#1F4E79" text-anchor="middle">{hour:02d}:{minute:02d}</text>
</svg>
"""


def save_clip(name):
    with tempfile.TemporaryDirectory() as folder:
        for i in range(CLIP_FRAMES):
            svg = os.path.join(folder, "frame.svg")
            with open(svg, "w", encoding="utf-8") as out:
                out.write(clip_frame(i / (CLIP_FRAMES - 1)))
            rasterise(svg, 320).save(os.path.join(folder, "%03d.png" % i))
        subprocess.run(["ffmpeg", "-v", "error", "-y", "-framerate", str(CLIP_RATE), "-i", os.path.join(folder, "%03d.png"),
                        "-c:v", "mjpeg", "-q:v", "6", "-pix_fmt", "yuvj420p", "-threads", "1",
                        "-fflags", "+bitexact", "-flags:v", "+bitexact", "-map_metadata", "-1",
                        os.path.join(TARGET, name)], check=True)


# ------------------------------------------------------------------------------------------------- the sound

def save_bird_call(name, rate=16000):
    """A cuckoo's call, three times: a higher note, then one a third lower, each a soft flute-like tone."""
    noise = random.Random(14)
    length = int(rate * 3.0)
    sound = [0.0] * length
    for call in range(3):
        for start, pitch, duration in ((0.12, 660, .17), (0.42, 545, .26)):
            first = int((call * .95 + start) * rate)
            phase = 0.0
            for i in range(int(duration * rate)):
                t = i / rate
                rise = min(1, t / .025)
                fall = min(1, (duration - t) / .09)
                glide = pitch * (1 + .03 * math.exp(-t / .03) - .02 * t / duration)
                phase += 2 * math.pi * glide / rate
                tone = math.sin(phase) + .16 * math.sin(2 * phase) + .05 * math.sin(3 * phase)
                breath = .03 * (noise.random() - .5)
                sound[first + i] += .62 * (tone + breath) * (rise * fall) ** 1.5
    # the wood answers: two soft echoes
    for delay, gain in ((int(.11 * rate), .18), (int(.23 * rate), .08)):
        for i in range(length - 1, delay - 1, -1):
            sound[i] += gain * sound[i - delay]
    top = max(abs(s) for s in sound)
    data = b"".join(struct.pack("<h", int(26000 * s / top)) for s in sound)
    with wave.open(os.path.join(TARGET, name), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(rate)
        out.writeframes(data)


# --------------------------------------------------------------------------------------------- the documents

W = 'xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"'


def run(text, bold=False, rtl=False):
    properties = ("<w:b/><w:bCs/>" if bold else "") + ("<w:rtl/>" if rtl else "")
    return "<w:r>%s<w:t xml:space=\"preserve\">%s</w:t></w:r>" % (
        "<w:rPr>%s</w:rPr>" % properties if properties else "", escape(text))


def paragraph(*texts, style=None, rtl=False, numbered=False):
    """Each text is plain, or a pair of a text and whether it is bold."""
    properties = '<w:pStyle w:val="%s"/>' % style if style else ""
    if numbered:
        properties += '<w:numPr><w:ilvl w:val="0"/><w:numId w:val="1"/></w:numPr>'
    if rtl:
        properties += "<w:bidi/>"
    body = "".join(run(text, rtl=rtl) if isinstance(text, str) else run(*text, rtl=rtl) for text in texts)
    return "<w:p>%s%s</w:p>" % ("<w:pPr>%s</w:pPr>" % properties if properties else "", body)


def table(rows, widths):
    out = ['<w:tbl><w:tblPr><w:tblStyle w:val="Grid"/><w:tblW w:w="%d" w:type="dxa"/><w:tblLook w:firstRow="1"/></w:tblPr><w:tblGrid>'
           % sum(widths)]
    out += ['<w:gridCol w:w="%d"/>' % width for width in widths]
    out.append("</w:tblGrid>")
    for number, row in enumerate(rows):
        out.append("<w:tr>")
        for width, text in zip(widths, row):
            shade = '<w:shd w:val="clear" w:color="auto" w:fill="DCEBFA"/>' if number == 0 else ""
            out.append('<w:tc><w:tcPr><w:tcW w:w="%d" w:type="dxa"/>%s</w:tcPr>%s</w:tc>'
                       % (width, shade, paragraph((text, number == 0), style="Cell")))
        out.append("</w:tr>")
    out.append("</w:tbl>")
    return "".join(out)


STYLES = f"""<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<w:styles {W}><w:docDefaults><w:rPrDefault><w:rPr><w:rFonts w:ascii="Noto Sans" w:hAnsi="Noto Sans" w:eastAsia="Noto Sans CJK SC" w:cs="Noto Sans Arabic"/><w:sz w:val="22"/><w:szCs w:val="22"/><w:lang w:val="en-GB" w:eastAsia="zh-CN" w:bidi="ar-SA"/></w:rPr></w:rPrDefault><w:pPrDefault><w:pPr><w:spacing w:after="120" w:line="276" w:lineRule="auto"/></w:pPr></w:pPrDefault></w:docDefaults>
<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/></w:style>
<w:style w:type="paragraph" w:styleId="Title"><w:name w:val="Title"/><w:basedOn w:val="Normal"/><w:pPr><w:spacing w:after="200"/></w:pPr><w:rPr><w:b/><w:bCs/><w:color w:val="1F4E79"/><w:sz w:val="40"/><w:szCs w:val="40"/></w:rPr></w:style>
<w:style w:type="paragraph" w:styleId="Heading1"><w:name w:val="heading 1"/><w:basedOn w:val="Normal"/><w:pPr><w:keepNext/><w:spacing w:before="280" w:after="100"/><w:outlineLvl w:val="0"/></w:pPr><w:rPr><w:b/><w:bCs/><w:color w:val="2A6DB5"/><w:sz w:val="28"/><w:szCs w:val="28"/></w:rPr></w:style>
<w:style w:type="paragraph" w:styleId="Cell"><w:name w:val="Table text"/><w:basedOn w:val="Normal"/><w:pPr><w:spacing w:before="40" w:after="40" w:line="240" w:lineRule="auto"/></w:pPr></w:style>
<w:style w:type="table" w:styleId="Grid"><w:name w:val="Table Grid"/><w:tblPr><w:tblBorders><w:top w:val="single" w:sz="4" w:color="8FB3D6"/><w:left w:val="single" w:sz="4" w:color="8FB3D6"/><w:bottom w:val="single" w:sz="4" w:color="8FB3D6"/><w:right w:val="single" w:sz="4" w:color="8FB3D6"/><w:insideH w:val="single" w:sz="4" w:color="8FB3D6"/><w:insideV w:val="single" w:sz="4" w:color="8FB3D6"/></w:tblBorders><w:tblCellMar><w:left w:w="108" w:type="dxa"/><w:right w:w="108" w:type="dxa"/></w:tblCellMar></w:tblPr></w:style>
</w:styles>"""

NUMBERING = f"""<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<w:numbering {W}><w:abstractNum w:abstractNumId="0"><w:multiLevelType w:val="singleLevel"/><w:lvl w:ilvl="0"><w:start w:val="1"/><w:numFmt w:val="decimal"/><w:lvlText w:val="%1."/><w:lvlJc w:val="left"/><w:pPr><w:ind w:left="425" w:hanging="425"/></w:pPr></w:lvl></w:abstractNum><w:num w:numId="1"><w:abstractNumId w:val="0"/></w:num></w:numbering>"""

CONTENT_TYPES = """<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="xml" ContentType="application/xml"/><Override PartName="/word/document.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml"/><Override PartName="/word/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.styles+xml"/><Override PartName="/word/numbering.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.numbering+xml"/></Types>"""

RELATIONS = """<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="word/document.xml"/></Relationships>"""

DOCUMENT_RELATIONS = """<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/><Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/numbering" Target="numbering.xml"/></Relationships>"""


def save_docx(name, *blocks):
    document = (f'<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n<w:document {W}><w:body>' + "".join(blocks) +
                '<w:sectPr><w:pgSz w:w="11906" w:h="16838"/><w:pgMar w:top="1134" w:right="1134" w:bottom="1134" w:left="1134" '
                'w:header="567" w:footer="567" w:gutter="0"/></w:sectPr></w:body></w:document>')
    with zipfile.ZipFile(os.path.join(TARGET, name), "w") as package:
        for part, text in (("[Content_Types].xml", CONTENT_TYPES), ("_rels/.rels", RELATIONS),
                           ("word/document.xml", document), ("word/_rels/document.xml.rels", DOCUMENT_RELATIONS),
                           ("word/styles.xml", STYLES), ("word/numbering.xml", NUMBERING)):
            entry = zipfile.ZipInfo(part, (2024, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            package.writestr(entry, text.encode("utf-8"))


def save_instructions():
    save_docx(
        "exam-instructions.docx",
        paragraph("The World Around Us", style="Title"),
        paragraph(("Class: ", True), "6b        ", ("Time: ", True), "70 minutes        ", ("Points: ", True), "100"),
        paragraph("Before you start", style="Heading1"),
        paragraph("Read every question to its end before you answer it.", numbered=True),
        paragraph("Several questions come with a picture, a sound, a clip or a text. Open it first.", numbered=True),
        paragraph("In questions 1 to 6 tick every answer that is right. There may be more than one.", numbered=True),
        paragraph("In questions 7 to 10 write the answers in the order of the gaps. Accents count.", numbered=True),
        paragraph("In questions 11 to 13 write whole sentences.", numbered=True),
        paragraph("For question 14 you need headphones and a microphone. Speak slowly and clearly.", numbered=True),
        paragraph("How the points are shared", style="Heading1"),
        table((("Questions", "Kind", "Points for each", "Together"),
               ("1 to 6", "Choice", "4.5", "27"),
               ("7 to 10", "Fill in", "6.5", "26"),
               ("11 to 13", "Essay", "12", "36"),
               ("14", "Oral", "11", "11")), (2200, 2200, 2600, 2200)),
        paragraph("考试须知", style="Heading1"),
        paragraph("请先认真读题，再作答。可以使用词典，不可以使用手机。祝你成功！"),
        paragraph("تعليمات", style="Heading1", rtl=True),
        paragraph("اقرأ كل سؤال جيدًا قبل أن تجيب. يُسمح باستعمال القاموس، ولا يُسمح باستعمال الهاتف. بالتوفيق!", rtl=True))


def save_notebook():
    save_docx(
        "pond-notebook.docx",
        paragraph("Our pond notebook", style="Title"),
        paragraph("Class 6b visited the school pond four times between March and June. This is what we wrote down."),
        paragraph("What we counted", style="Heading1"),
        table((("Living thing", "March", "April", "May", "June", "What it eats"),
               ("Green algae", "few", "many", "many", "many", "makes its own food in the light"),
               ("Water fleas", "12", "85", "140", "96", "algae"),
               ("Sticklebacks", "3", "4", "9", "14", "water fleas, larvae"),
               ("Dragonfly larvae", "2", "5", "6", "1", "water fleas, young sticklebacks"),
               ("Grey heron", "0", "1", "1", "1", "sticklebacks, frogs")), (1900, 950, 950, 950, 950, 3900)),
        paragraph("What we noticed", style="Heading1"),
        paragraph("In March the water was clear and cold (7 °C). We could see the bottom.", numbered=True),
        paragraph("In May the water was green (16 °C), and the water fleas moved in clouds near the surface.", numbered=True),
        paragraph("In June we found empty skins on the reeds: the dragonflies had left the water.", numbered=True),
        paragraph("A heron came every morning before the first lesson and stood still for a long time.", numbered=True))


def main():
    write_source("earth.svg", earth_svg())
    write_source("rainfall.svg", rainfall_svg())
    save_jpg("cover.svg", "cover.jpg", 840)
    save_jpg("earth.svg", "earth.jpg", 600)
    save_jpg("plant.svg", "bean-plant.jpg", 500)
    save_gif("circuit.svg", "circuit.gif", 480)
    save_bmp16("rainfall.svg", "rainfall.bmp", 480)
    save_bird_call("bird-call.wav")
    save_clip("shadow.avi")
    save_instructions()
    save_notebook()
    for name in sorted(os.listdir(TARGET)):
        path = os.path.join(TARGET, name)
        if os.path.isfile(path):
            print("%8d  %s" % (os.path.getsize(path), name))


if __name__ == "__main__":
    main()
