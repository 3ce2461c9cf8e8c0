"""Tables of positions and layers, tables to paste, and settings; good and broken."""


def position_seeds():
    for number, separator in enumerate(";, "):
        for label in ("", "shot_id_1" + separator):
            reader = number + (3 if label else 0)
            for text in ("{1}0{0}100.5\n{1}5{0}-1e2\n", "{1}0{0}1\r\n\r\n{1}2\n\n", "{1}x{0}\n",
                         "{1}1e999{0}0\n", "{1}nan{0}inf\n", "{1}", "9" * 257):
                yield reader, text.format(separator, label)


def layer_seeds():
    good = "1;1;2;3\n;\n0;2;3;\n"
    for text in (good, good + "1\n", good[:-4], "1;1;2;4\n", "1;1;2;3;3\n", "\n \n1;1;2;1.0\n"):
        yield 6, text


def pasted_seeds():
    for reader in (7, 8):
        for text in ("x\tz\n0\t100,5\n5\t1.234,5\n", "0;1\n2;3\n\n", "1,5\n2,5\n", "1,2,3\n4,,6\n",
                     "1 2\n3 4 5\n", "1\tinf\n", "\t\n1\t\n", "1\n" * 60):
            yield reader, text


def named_seeds():
    for text in ("0 100,5\n5 101\n", "x (m);z (cm)\n0;1\n5;2,5\n", '"distance","elevation"\n"0","1"\n',
                 "1 2 3\n", "x\tz\n1\tup\n"):
        yield 9, text
    for reader in (10, 11):
        for text in ("kind,spread,x,z\ngeophone,1,0,100\nshot,,2.5,99\n", "gx gz sx sz\n0 1 2 3\n",
                     "# shot_x;shot_z;gx;elevation\n1;2;3;4\n1;2\n"):
            yield reader, text


def known_seeds():
    heading = "kind,name,x,depth,bottom,velocity,error,refractor\n"
    rows = ("borehole,B1,5,0,2,400,20,\nborehole,B1,5,2,9,1500,,\n", "depth,P1,8,4.1,,1200,0.4,1\n",
            "body,W,1,0,,340,,\nbody,W,2,0,,,,\nbody,W,2,1,,,,\n", "borehole,B1,5,2,1,400,,\n",
            "depth,,nan,1e999,,,,\n", "body,W,1,0,,340,,\n", "")
    for row in (*rows, "".join(rows[:3])):
        yield 12, heading + row
    yield 12, rows[0]


def surveyed_seeds():
    rows = "G1;652000,5;5074000;100\nG2;652005;5074000,25;\nS1;651990;5074001;99,5\n;;;\n"
    for text in ("name;easting;northing;z\n" + rows, rows, rows.replace(";", "\t"),
                 "nr,lat,lon,ele\n1,45.8,10.9,5\n2,N45 48.1,E10 57 21.8,6\n3,-45:48:10,10d57m,7\n",
                 'id,lon,lat\n1,"10 57\'21.8""E",45 O\n2,181,0\n', "x,z\n1,2\n", "a b c\n1 2 3\n1 2 3\n",
                 "x,y\n1e8,-1e8\n1e8,-1e8\n0,nan\n", "x,y,z\n0,0,1\n3,4,1\n6,8,1e9\n"):
        yield 13, text


def table_seeds():
    for seeds in (position_seeds(), layer_seeds(), pasted_seeds(), named_seeds(), known_seeds(), surveyed_seeds()):
        yield from (bytes([reader]) + text.encode("ascii") for reader, text in seeds)


def setting_seeds():
    keys = ("zoomIn", "cutHorizontal", "fillWiggle", "showFiltered", "showAllTraces",
            "savePngHColorbar", "twoColors")
    head, end = '<?xml version="1.0" encoding="utf-8"?>\n<cereal>', "</cereal>\n"
    flags = "".join(f"<{key}>{value}</{key}>" for key, value in zip(keys, ["true", "false"] * 4))
    language = "<language>it</language>"
    for content in (language + flags, language, flags, language.replace("it", "&lt; &#232;&amp;"),
                    language.replace("it", ""), flags.replace("true", "1").replace("false", "0"),
                    flags.replace("true", "yes"), "<a>" * 400, "<!-- -->" + language):
        yield (head + content + end).encode("ascii")
    yield b""
    yield head.encode("ascii")
