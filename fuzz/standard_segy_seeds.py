"""Small SEG-Y and SU files as their standard has them, and some that lie."""
import struct

SAMPLES = [0, 1, -2, 100, -128, 5]
LAYOUTS = {2: "i", 3: "h", 5: "f", 6: "d", 8: "b", 9: "q", 10: "I", 11: "H", 12: "Q", 16: "B"}


def data(order, code, samples):
    if code in (7, 15):
        name = "little" if order == "<" else "big"
        return b"".join((v & 0xFFFFFF).to_bytes(3, name) for v in samples)
    layout = LAYOUTS.get(code, "I")
    plain = [v if layout.islower() else abs(v) for v in samples]
    return b"".join(struct.pack(order + layout, v) for v in plain)


def put(header, order, fields):
    """Fields by the byte that the standard counts from 1, and their layout."""
    for (byte, layout), value in fields.items():
        struct.pack_into(order + layout, header, byte - 1, value)


def trace(order, code, fields, samples=None, extension=b""):
    samples = SAMPLES if samples is None else samples
    header = bytearray(240)
    put(header, order, {(29, "h"): 1, (115, "H"): len(samples), (117, "H"): 250} | fields)
    return bytes(header) + extension + data(order, code, samples)


def segy(order, code, traces, revision=0, text=b" ", extended=b"", trailer=b"", **extra):
    head = bytearray(text * 3200 + bytes(400))
    put(head, order, {(3217, "H"): 250, (3221, "H"): len(SAMPLES), (3225, "h"): code,
                      (3501, "B"): revision} | extra.get("fields", {}))
    return bytes(head) + extended + b"".join(traces) + trailer


def line(order, code, shots=1, **fields):
    for shot in range(shots):
        for channel in range(3):
            yield trace(order, code, {
                (9, "i"): 7 + shot, (13, "i"): channel + 1, (17, "i"): shot, (37, "i"): 5 * channel,
                (41, "i"): 1000, (45, "i"): 1010, (69, "h"): -10, (71, "h"): -100,
                (73, "i"): -250 + 1000 * shot, (81, "i"): 500 * channel} | fields.get("more", {}))


def revision_two(order):
    extension = bytearray(240)
    put(extension, order, {(97, "d"): 1.5, (113, "d"): 2.5, (145, "d"): 31.25, (157, "h"): 1})
    traces = [trace(order, 3, {}, extension=bytes(extension)) for _ in range(2)]
    return segy(order, 3, traces, 2, extended=bytes(77), trailer=b"((A: b))".ljust(3200), fields={
        (3269, "I"): len(SAMPLES), (3273, "d"): 31.25, (3297, "I"): 0x01020304, (3507, "I"): 1,
        (3521, "Q"): 3677, (3529, "i"): -1})


def segy_standard_seeds():
    for order in "<>":
        for code in (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16):
            yield segy(order, code, line(order, code), text=b"\x40", revision=code % 3)
        yield segy(order, 3, line(order, 3, shots=3))
        yield revision_two(order)
        yield segy(order, 3, line(order, 3), 1, extended=b"((SEG: EndText))".ljust(3200),
                   fields={(3505, "h"): -1})
        for more in ({(109, "h"): 1}, {(109, "h"): -100, (215, "h"): -10}, {(89, "h"): 3},
                     {(115, "H"): 462}, {(77, "i"): 3, (85, "i"): 700}, {(29, "h"): 2},
                     {(71, "h"): 82}, {(41, "i"): 2**31 - 1}, {(73, "i"): 0, (81, "i"): 0}):
            yield segy(order, 2, line(order, 2, more=more), 1)
        yield segy(order, 2, line(order, 2), fields={(3255, "h"): 2, (3229, "h"): 4})
        yield segy(order, 16, line(order, 16))[:-3]
        yield segy(order, 16, line(order, 16)) + bytes(300)


def su_standard_seeds():
    for order in "<>":
        yield b"".join(line(order, 5))
        yield b"".join(line(order, 5, shots=2))
        yield b"".join(line(order, 5, more={(29, "h"): 6}))
        yield trace(order, 5, {}, [1, 2]) + trace(order, 5, {}, [1, 2, 3, 4, 5])
        yield b"".join(line(order, 5, more={(109, "h"): -100, (117, "H"): 0}))[:-5]
