"""Small shot files in every format and byte order, sound and with headers that lie."""
import struct

SAMPLES = [0, 1, -2, 300, -32768, 5, 6, 7]


def strings(*texts):
    area = b"".join(struct.pack("<H", len(t) + 3) + t.encode("ascii") + b"\0" for t in texts)
    return area + b"\0\0"


def headers(channel):
    """The header strings of a channel, each time of another layout."""
    receiver = [f"{5 * channel}", f"{5 * channel} 101.5", f"{5 * channel},0 0 101,5"][channel % 3]
    return strings(f"DELAY {0.5 - channel}", f"RECEIVER_LOCATION {receiver}",
                   "SAMPLE_INTERVAL 0.00025", f"SOURCE_LOCATION -2.5 {channel}",
                   "NOTE " + "n" * 41)


def seg2(codes, samples=SAMPLES, area=headers):
    pointers, blocks = [], b""
    for channel, code in enumerate(codes):
        pointers.append(32 + 4 * len(codes) + len(blocks))
        text = area(channel)
        descriptor = struct.pack("<HHIIB19x", 0x4422, 32 + len(text), 4 * len(samples),
                                 len(samples), code)
        layout = {1: "<hxx", 10: "<hxx", 4: "<f"}.get(code, "<i")
        blocks += descriptor + text + b"".join(struct.pack(layout, v) for v in samples)
    head = struct.pack("<HHHH24x", 0x3A55, 1, 4 * len(codes), len(codes))
    return head + struct.pack(f"<{len(codes)}I", *pointers) + blocks


def seg2_seeds():
    yield from (seg2([code]) for code in (0, 1, 2, 3, 4, 5, 10))
    yield from (seg2([4] * count) for count in (0, 2, 3))
    yield from (seg2([4, 2], SAMPLES[:count]) for count in (0, 1, 2))
    for text in (b"", b"SAMPLE_INTERVAL 1", b"SAMPLE_INTERVAL", b"SAMPLE_INTERVAL 1e999",
                 b"SAMPLE_INTERVAL nan\nDELAY 1", strings("SAMPLE_INTERVAL 0,5", "SOURCE_LOCATION")):
        yield seg2([4], area=lambda _, text=text: text)
    sound = seg2([4, 4])
    yield sound[:-9]
    yield sound[:36] + struct.pack("<I", 0xFFFFFFF0) + sound[40:]
    yield sound[:6] + b"\xff\xff" + sound[8:]
    yield sound[1::-1] + sound[2:]


def traces(order, code, count, samples, interval=250, scalar=1):
    layout = order + {3: "h", 5: "f"}.get(code, "i")
    data = b"".join(struct.pack(layout, v) for v in samples)
    made = b""
    for channel in range(count):
        header = bytearray(240)
        struct.pack_into(order + "hi4xi", header, 70, scalar, -5, 10 * channel)
        struct.pack_into(order + "HH", header, 114, len(samples), interval)
        made += bytes(header) + data
    return made


def segy(order, code, count=2, samples=SAMPLES, constant=b"\0\0\0\0", **fields):
    head = bytearray(3600)
    struct.pack_into(order + "h", head, 3212, count)
    struct.pack_into(order + "H", head, 3216, 250)
    struct.pack_into(order + "h", head, 3224, code)
    head[3296:3300] = constant
    return bytes(head) + traces(order, code, count, samples, **fields)


def segy_seeds():
    constants = {"<": b"\4\3\2\1", ">": b"\1\2\3\4"}
    for order, constant in constants.items():
        yield from (segy(order, code, constant=constant) for code in (1, 2, 3, 5, 6))
        yield segy(order, 5)
        yield from (segy(order, 5, samples=SAMPLES[:count]) for count in (0, 1, 2))
        yield segy(order, 5, count=0, constant=constant)
        yield from (segy(order, 3, scalar=scalar) for scalar in (0, -1, -10, 100))
        yield segy(order, 5, constant=constant)[:-9]
    yield segy(">", 2, constant=b"\3\4\1\2")
    yield segy("<", 5)[:3212] + b"\x7f\x7f" + segy("<", 5)[3214:]


def su_seeds():
    for big, order in enumerate("<>"):
        for code in (0, 3, 5):
            state = bytes([2 * code + big])
            yield state + traces(order, 5, 3, SAMPLES)
            yield state + traces(order, 5, 2, SAMPLES, scalar=-10)[:-9]
        yield from (bytes([big]) + traces(order, 5, 2, SAMPLES[:count]) for count in (0, 1, 2))
        yield bytes([1 - big]) + traces(order, 5, 2, SAMPLES)


def shot_seeds():
    return {"seg2": seg2_seeds(), "segy": segy_seeds(), "su": su_seeds()}
