"""Small files as the standards of their formats have them, and some that lie."""
import struct

from standard_segy_seeds import segy_standard_seeds, su_standard_seeds

SAMPLES = [0, 1, -2, 300, -32000, 5, 6]


def seg2_strings(order, *texts, wrong=0):
    area = b"".join(struct.pack(order + "H", len(t) + 3 + wrong) + t.encode("ascii") + b"\0"
                    for t in texts)
    return area + b"\0\0"


def float20(order, samples):
    """Groups of four: a word of exponents, then mantissas whose negative ones are complemented."""
    data = b""
    for first in range(0, len(samples), 4):
        group = (samples[first:first + 4] + [0] * 4)[:4]
        data += struct.pack(order + "H4H", 0x4321, *((~-v if v < 0 else v) & 0xFFFF for v in group))
    return data


def seg2_data(order, code, samples):
    if code == 3:
        return float20(order, samples)
    return b"".join(struct.pack(order + {1: "h", 4: "f", 5: "d"}.get(code, "i"), v) for v in samples)


def seg2(order, code, headers, samples=None, units="METERS", wrong=0):
    samples = SAMPLES if samples is None else samples
    texts = seg2_strings(order, f"UNITS {units}", "NOTE \n BASE_INTERVAL 5\n")
    pointers, blocks = [], b""
    for header in headers:
        pointers.append(32 + 4 * len(headers) + len(texts) + len(blocks))
        area = seg2_strings(order, *header, wrong=wrong)
        data = seg2_data(order, code, samples)
        blocks += struct.pack(order + "HHIIB19x", 0x4422, 32 + len(area), len(data), len(samples),
                              code) + area + data
    head = struct.pack(order + "HHHH", 0x3A55, 1, 4 * len(headers), len(headers))
    head += b"\1\0\0\1\n\0" + bytes(18)
    return head + struct.pack(f"{order}{len(headers)}I", *pointers) + texts + blocks


def seg2_header(channel, shot=1, **strings):
    texts = {"CHANNEL_NUMBER": channel, "DELAY": "-0.002", "DESCALING_FACTOR": "4.2E-005",
             "RECEIVER_LOCATION": f"{5 * channel} 0 101.5", "SAMPLE_INTERVAL": "0.00025",
             "SHOT_SEQUENCE_NUMBER": shot, "SKEW": "-0.0001", "SOURCE_LOCATION": 10 * shot,
             "STACK": 4} | strings
    return [f"{keyword} {value}" for keyword, value in texts.items()]


def seg2_seeds():
    line = [seg2_header(channel) for channel in (1, 2)]
    for order in "<>":
        yield from (seg2(order, code, line) for code in range(7))
        yield from (seg2(order, 4, line, wrong=wrong) for wrong in (-2, -1, 2))
        yield seg2(order, 5, line, units="FEET")
        yield seg2(order, 1, [seg2_header(1, shot) for shot in (1, 1, 2, 2)])
        yield seg2(order, 3, line, samples=SAMPLES[:2])
    for strings in ({"DELAY": "0,0005"}, {"DELAY": "9"}, {"SAMPLE_INTERVAL": "nan"},
                    {"RECEIVER_LOCATION": "5.6417665 50.59781866 238.2"}, {"SKEW": "0.001"},
                    {"RECEIVER_LOCATION": "1,5;2,3"}, {"STACK": "0"}, {"source_location": "\t7"}):
        yield seg2("<", 4, [seg2_header(channel, **strings) for channel in (1, 2)])
    sound = seg2("<", 4, line)
    yield sound[:-9]
    yield sound[:32] + struct.pack("<I", 0xFFFFFFF0) + sound[36:]
    yield seg2("<", 4, [])


def seed_record(order, encoding, data, samples, channel=b"HHZ", tenths=0, rate=(1000, 1), exponent=8):
    head = b"000001D " + b"STA  " + b"00" + channel + b"XX"
    head += struct.pack(order + "HHBBBxHHhhBBBBiHH", 2013, 7, 12, 0, 0, tenths, samples, *rate, 0, 0,
                        0, 3, 0, 96, 48)
    head += struct.pack(order + "HHBBBx", 1000, 56, encoding, order == ">", exponent)
    head += struct.pack(order + "HHf4x", 100, 68, 1000)
    head += struct.pack(order + "HHBbBB", 1001, 0, 100, 7, 0, 2)
    return (head.ljust(96, b"\0") + data).ljust(1 << exponent, b"\0")


def steim(order, code, word, frames=2):
    codes = sum(code << 2 * (15 - i) for i in range(3, 16))
    rest = sum(code << 2 * (15 - i) for i in range(1, 16))
    data = struct.pack(order + "Iii13I", codes, 100, 99, *[word] * 13)
    return data + struct.pack(order + "I15I", rest, *[word] * 15) * (frames - 1)


def mseed_seeds():
    for order in "<>":
        for encoding, layout in ((1, "h"), (3, "i"), (4, "f"), (5, "d"), (16, "i")):
            data = b"".join(struct.pack(order + layout, v) for v in SAMPLES)
            one = seed_record(order, encoding, data, len(SAMPLES))
            yield one + seed_record(order, encoding, data, len(SAMPLES), tenths=70)
            yield one + seed_record(order, encoding, data, len(SAMPLES), tenths=100)
            yield one + seed_record(order, encoding, data, len(SAMPLES), tenths=30)
            yield one + seed_record(order, encoding, data, len(SAMPLES), b"HHE", tenths=20)
        for encoding in (10, 11):
            for code in (1, 2, 3):
                for top in range(4):
                    data = steim(order, code, top << 30 | 0x01234567)
                    yield seed_record(order, encoding, data, 60)
        yield seed_record(order, 3, b"", 0, rate=(0, 0))
        yield seed_record(order, 3, b"", 65535, rate=(-10, -3), exponent=9)
    yield seed_record(">", 3, bytes(99), 30)[:150] + b"x" * 77
    yield b"MS\3" + bytes(100)


def standard_seeds():
    return {"seg2_standard": seg2_seeds(), "mseed": mseed_seeds(),
            "segy_standard": segy_standard_seeds(), "su_standard": su_standard_seeds()}
