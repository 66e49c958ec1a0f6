import sys, struct, zlib
# xwd (24 bit packed, LSB first) to PNG; optional crop x0,y0,x1,y1 and box-filter shrink by an integer factor.
d = open(sys.argv[1], 'rb').read()
h = struct.unpack('>25I', d[:100])
hsize, w, hgt = h[0], h[4], h[5]
bpl = h[12]; ncolors = h[19]; bpx = h[11] // 8
off = hsize + ncolors * 12
f = int(sys.argv[3]) if len(sys.argv) > 3 else 1
x0, y0, x1, y1 = (0, 0, w, hgt)
if len(sys.argv) > 4: x0, y0, x1, y1 = map(int, sys.argv[4].split(','))
W = (x1 - x0) // f; H = (y1 - y0) // f
def px(x, y):
    b = off + y * bpl + bpx * x
    return d[b + 2], d[b + 1], d[b]
rows = []
for j in range(H):
    row = bytearray(b'\x00')
    for i in range(W):
        r = g = bl = 0
        for dy in range(f):
            for dx in range(f):
                p = px(x0 + i * f + dx, y0 + j * f + dy); r += p[0]; g += p[1]; bl += p[2]
        n = f * f
        row += bytes((r // n, g // n, bl // n))
    rows.append(bytes(row))
def chunk(t, b): return struct.pack('>I', len(b)) + t + b + struct.pack('>I', zlib.crc32(t + b) & 0xffffffff)
open(sys.argv[2], 'wb').write(b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack('>IIBBBBB', W, H, 8, 2, 0, 0, 0)) + chunk(b'IDAT', zlib.compress(b''.join(rows), 9)) + chunk(b'IEND', b''))
