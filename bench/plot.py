"""Two plain SVG plots: lines over logarithmic axes, and pairs of bars."""

import math
from xml.sax.saxutils import escape

COLOURS = ["#1f6feb", "#d9822b", "#5c6773"]
STYLE = 'font-family="sans-serif" font-size="12" fill="#24292f"'


def text(x, y, content, anchor="start"):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" {STYLE}>{escape(content)}</text>'


def line(x1, y1, x2, y2):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="#d0d7de"/>'


def write(path, width, height, parts):
    head = f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">'
    with open(path, "w", encoding="utf-8") as file:
        file.write("\n".join([head, f'<rect width="{width}" height="{height}" fill="#ffffff"/>', *parts, "</svg>", ""]))


def legend(x, y, titles):
    parts = []
    for i, title in enumerate(titles):
        parts.append(f'<rect x="{x}" y="{y + 18 * i - 9}" width="10" height="10" fill="{COLOURS[i]}"/>')
        parts.append(text(x + 16, y + 18 * i, title))
    return parts


def lines(path, title, x_title, series):
    """`series`: title -> [(x, y)]; both axes logarithmic."""
    width, height, left, bottom, top, right = 640, 400, 80, 350, 40, 620
    points = [point for one in series.values() for point in one]
    low_x, high_x = min(x for x, _ in points), max(x for x, _ in points)
    low_y = 10 ** math.floor(math.log10(min(y for _, y in points)))
    high_y = 10 ** math.ceil(math.log10(max(y for _, y in points)))

    def place(x, y):
        across = math.log(x / low_x) / math.log(high_x / low_x)
        up = math.log(y / low_y) / math.log(high_y / low_y)
        return left + across * (right - left), bottom - up * (bottom - top)

    parts = [text(left, 22, title), text((left + right) / 2, height - 12, x_title, "middle")]
    tick = low_y
    while tick <= high_y:
        y = place(low_x, tick)[1]
        parts += [line(left, y, right, y), text(left - 6, y + 4, f"{tick:,}", "end")]
        tick *= 10
    for x, _ in next(iter(series.values())):
        parts.append(text(place(x, low_y)[0], bottom + 16, str(x), "middle"))
    for i, one in enumerate(series.values()):
        path_points = " ".join("{:.1f},{:.1f}".format(*place(x, y)) for x, y in one)
        parts.append(f'<polyline points="{path_points}" fill="none" stroke="{COLOURS[i]}" stroke-width="2"/>')
    write(path, width, height, parts + legend(left + 14, top + 14, series))


def bars(path, title, titles, rows):
    """`rows`: (name, value for each of `titles`)."""
    left, top, row_height, width = 200, 64, 26, 800
    most = max(value for row in rows for value in row[1:])
    scale = (width - left - 130) / most
    parts = [text(20, 22, title)]
    for i, one in enumerate(titles):
        parts.append(f'<rect x="{20 + 120 * i}" y="35" width="10" height="10" fill="{COLOURS[i]}"/>')
        parts.append(text(36 + 120 * i, 44, one))
    for number, (name, *values) in enumerate(rows):
        y = top + row_height * number
        parts.append(text(left - 8, y + 14, name, "end"))
        for i, value in enumerate(values):
            parts.append(f'<rect x="{left}" y="{y + 10 * i}" width="{value * scale:.1f}" height="9" '
                         f'fill="{COLOURS[i]}"/>')
        parts.append(text(left + max(values) * scale + 6, y + 14, " / ".join(f"{value:,}" for value in values)))
    write(path, width, top + row_height * len(rows) + 10, parts)
