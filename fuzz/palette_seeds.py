"""Palette and isovalue files, good and broken."""

HEAD = '<?xml version="1.0" encoding="utf-8"?>\n'


def element(name, content, attribute=""):
    return f"<{name}{attribute}>{content}</{name}>"


def stop(number, position, red, green, blue):
    parts = zip(("mr", "mg", "mb", "mval"), (red, green, blue, position))
    return element(f"value{number}", "".join(element(key, f"{value:g}") for key, value in parts))


def palette(stops, name="Seed", n_colors=64, low=250, high=3500):
    color = element("color", "".join(stop(i, *each) for i, each in enumerate(stops)),
                    ' size="dynamic"')
    parts = [element("name", name), element("n_colors", n_colors), element("is_editable", "true"),
             element("min_db", low), element("max_db", high), element("color_gradient", color)]
    return HEAD + element("cereal", "".join(parts))


def palette_seeds():
    grey = [(0, 0, 0, 0), (1, 1, 1, 1)]
    good = palette(grey)
    texts = [
        good,
        palette([(0.5, 1, 0, 0)], name=""),
        palette([(1, 1, 1, 1), (0.4, 0.33, 1, 1), (0, 0, 0, 0)], "&lt;&#65;&amp;&#1;", 7, 0.5, 0.25),
        palette([(-1, 5, 0, 0), (2, 0, -5, 0)], n_colors=-1, low=300, high=300),
        palette(grey, n_colors=2147483647, low=1e9, high=1e9),
        palette(grey, low="nan"), palette(grey, high="1e999"), palette(grey, n_colors="many"),
        palette([]), palette([(i / 300, 0, 0, 0) for i in range(300)]),
        palette([(i / 255, i / 255, 0, 0) for i in range(256)]),
        palette([(i / 300, 0, 0, 0) for i in range(1, 256)]),
        good.replace("<name>", "<!-- a comment --><name>"), good.replace("<cereal>", ""),
        good.replace("<cereal>", "<!DOCTYPE a><cereal>"), good.replace("</color>", ""),
        good.replace("dynamic", "</color>"), good.replace('"dynamic"', "dynamic"),
        good.replace("<mr>0</mr>", "<mr/>"), good[:len(good) // 2],
        HEAD + "<cereal>" + "<a>" * 20000 + "</a>" * 20000 + "</cereal>", HEAD, "<", "<a", "<a b='",
    ]
    return [text.encode("ascii") for text in texts] + [b"\xff\xfe" + good.encode("utf-16-le")]


def isovalue_seeds():
    for number, separator in enumerate(";, "):
        for text in ("500{0}true\n1000.5{0}true\n", "-1e5{0}true\r\n\r\n", "500 m{0}true\n", "\n\n",
                     "nan{0}true\n", "500", "1" * 255 + "\n", "1" * 257 + "\n",
                     "1{0}true\n" * 1001):
            yield bytes([number]) + text.format(separator).encode("ascii")
