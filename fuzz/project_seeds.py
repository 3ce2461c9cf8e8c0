"""Small projects as archives, and their members alone, sound and with sizes that lie."""
import io
import zipfile

HEAD = '<?xml version="1.0" encoding="utf-8"?>\n<cereal>\n'
TAIL = "</cereal>\n\n"


def values(items, tag="value"):
    return "".join(f"<{tag}{i}>{item}</{tag}{i}>" for i, item in enumerate(items))


def sequence(name, items, tag="value"):
    return f'<{name} size="dynamic">{values(items, tag)}</{name}>\n'


def point(x, z):
    return f"<x>{x}</x><z>{z}</z>"


def survey(shots=2, string=0, extra=""):
    geophones = sequence("goephonesStringSet", [sequence("g", [point(5 * i, 100) for i in range(3)])])
    geophones = geophones.replace('<value0><g size="dynamic">', "<value0>").replace("</g>\n", "")
    records = [f"<shotPos2d>{point(10 * i - 1, 100)}</shotPos2d><indexStesa>{string}</indexStesa>"
               + sequence("ttMisurati", [0.01, 0, -99]) + sequence("ttCalcolati", [-99] * 3)
               + f"<traceSetID>{i}</traceSetID>" for i in range(shots)]
    return HEAD + geophones + sequence("ttArray", records) + extra + TAIL


def grid(rows=2, columns=6, nodes=6, side=2.0, count=None):
    count = rows * columns if count is None else count
    return (HEAD + f"<righe>{rows}</righe><col>{columns}</col><nV>{nodes}</nV><aLato>{side}</aLato>"
            + sequence("velocities", [400 + i for i in range(count)])
            + sequence("to_be_draw", ["true", "false"] * (count // 2)) + TAIL)


def traces(sets=2, files=0, samples=(1, 2, 3)):
    trace = "<pos>5</pos><time>0.001</time>" + sequence("TAB", samples)
    listed = sequence("traceSet", ["".join(f"<value{j}>{trace}</value{j}>" for j in range(3))] * sets)
    names = "".join(sequence(f"filenames{side}", [f"{i}.dat" for i in range(files)])
                    for side in ("", "_DX", "_SX"))
    return (HEAD + names + "<wave_type>0</wave_type>" + sequence("shot_pos", range(sets)) + listed
            + TAIL)


def palettes(count=1, current=0):
    stops = [f"<mr>{v}</mr><mg>0</mg><mb>1</mb><mval>{v}</mval>" for v in (0, 1)]
    palette = ("<name>one</name><n_colors>16</n_colors><is_editable>true</is_editable>"
               "<min_db>250</min_db><max_db>3500</max_db><color_gradient>"
               + sequence("color", stops) + "</color_gradient>")
    return (HEAD + f"<n_palettes>{count}</n_palettes><curr_palette>{current}</curr_palette>"
            + sequence("palettes", [palette] * count) + TAIL)


def refraction(shot=0, layer=2):
    phantom = (sequence("enabled", ["true"]) + "<layer>2</layer><shotID>0</shotID><trasla>0</trasla>")
    layers = (f"<shotID>{shot}</shotID>" + sequence("layer", [1, layer, 0])
              + sequence("trasla", [0, 0, 0]) + "<enabled>true</enabled>")
    data = "".join(sequence(name, [0.5]) for name in ("tG", "tV", "tGs", "tVs"))
    return (HEAD + sequence("phnt_A", [phantom]) + sequence("phnt_R", []) + "<refractData>"
            + sequence("cData", [data]) + "<v1>400</v1>" + sequence("v2", []) + sequence("v3", [])
            + "</refractData>" + sequence("ttLayer", [layers]) + TAIL)


def picks(version=1, traces=(0,)):
    return (HEAD + f"<version>{version}</version><picks>1</picks>"
            + sequence("unconfirmed", ["".join(f"<value{i}>{t}</value{i}>"
                                               for i, t in enumerate(traces)), ""]) + TAIL)


def errors(version=1, time=0.01, sigma=0.001, trace=0):
    error = f"<of>{trace}</of><time>{time}</time><sigma>{sigma}</sigma>"
    return (HEAD + f"<version>{version}</version>" + sequence("errors", [values([error]), ""])
            + sequence("recorded", []) + TAIL)


def fit(floor=0.0005, late=0.001, reference="two-layers"):
    shifts = [f"<late>{value}</late><mended>0</mended>" for value in (late, -0.001)]
    return (f"<error_floor>{floor}</error_floor><error_share>0.03</error_share><robust>true</robust>"
            "<blocky>false</blocky><statics>true</statics><lambda>0.5</lambda><chi2>1</chi2>"
            "<chi2_all>1.5</chi2_all><suspects>1</suspects><target>true</target>"
            f"<reference>{reference}</reference>" + sequence("shifts", shifts))


def runs(rows=2, columns=6, fits=(fit(),), count=None, version=1):
    cells = rows * columns if count is None else count
    record = ("<externalIterations>1</externalIterations><solverIterations>1</solverIterations>"
              "<smoothing>5</smoothing><smoothingType>0</smoothingType><symmetric>false</symmetric>"
              "<minVelocity>50</minVelocity><maxVelocity>8000</maxVelocity>"
              "<elapsedSeconds>1</elapsedSeconds><stopped>false</stopped>" + sequence("history", []))
    run = ("<number>1</number><name>one</name><when></when><run>" + record
           + "</run><computing_seconds>1</computing_seconds><picks>1</picks>"
           + sequence("section_history", []) + sequence("fit", fits)
           + "<rms_percent>1</rms_percent><chi2>1</chi2><chi2_all>1</chi2_all><positions>1</positions>"
           f"<righe>{rows}</righe><col>{columns}</col><nV>6</nV><aLato>2</aLato><x_offset>1</x_offset>"
           + sequence("surface_x", [0, 12]) + sequence("surface_z", [100, 100])
           + sequence("velocities", [400] * cells) + sequence("coorcount", [1] * cells)
           + sequence("hit_counts", [1] * cells)
           + sequence("times", [values([0.01, -99, 0.02])] * 2))
    return HEAD + f"<version>{version}</version>" + sequence("runs", [run]) + TAIL


MEMBERS = {
    "tomodoc.xml": [survey(), survey(0), survey(2, 7), survey(2, -1),
                    survey(extra="<title>a &lt; b</title><has_tomographic_info>true"
                                 "</has_tomographic_info>"),
                    HEAD + "<a>" * 100, ""],
    "grid.xml": [grid(), grid(0, 0, 0, 0), grid(4294967295, 4294967295, count=4), grid(count=4),
                 grid(nodes=4000000), grid(side="nan")],
    "traces.xml": [traces(), traces(0), traces(3), traces(files=2, samples=()), traces(files=3)],
    "palettes.xml": [palettes(), palettes(0), palettes(1, 99)],
    "refraction.xml": [refraction(), refraction(9), refraction(0, 9)],
    "picks.xml": [picks(), picks(traces=(4294967295,)), picks(2), picks("x"), HEAD + TAIL],
    "errors.xml": [errors(), errors(trace=4294967295), errors(sigma="nan"), errors(sigma=-1),
                   errors(time=0.02), errors(2)],
    "runs.xml": [runs(), runs(fits=()), runs(fits=(fit(floor=0),)), runs(fits=(fit(late="nan"),)),
                 runs(fits=(fit(late=1e300),)), runs(fits=(fit(reference="x" * 20000),)),
                 runs(4294967295, 4294967295, count=4), runs(count=4), runs(version=2)],
}


def archive(entries, method):
    buffer = io.BytesIO()
    with zipfile.ZipFile(buffer, "w", method) as made:
        for name, text in entries:
            made.writestr(zipfile.ZipInfo(name), text, method)
    return buffer.getvalue()


def project_seeds():
    for place, (_, texts) in enumerate(MEMBERS.items(), 1):
        yield from (bytes([place]) + text.encode("utf-8") for text in texts)
    sound = [(name, texts[0]) for name, texts in MEMBERS.items()]
    for method in (zipfile.ZIP_STORED, zipfile.ZIP_DEFLATED):
        whole = archive(sound, method)
        yield b"\0" + whole
        yield b"\0" + whole[:-10]
        yield b"\0" + archive(sound + [("../evil", "x")], method)
        yield b"\0" + archive(sound[1:], method)
    yield b"\0" + archive([], zipfile.ZIP_STORED)
