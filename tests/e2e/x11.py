"""What the tests and benchmarks ask of an X server, through libX11 and libXtst, which the game and xdotool need anyway.

    with Display(":7") as display:
        picture = display.picture((0, 0, 800, 600))
        if picture and picture.pixel(400, 300) != (0, 0, 0): ...

Nothing here may stay open while its server ends: libX11 ends the whole process then.
"""
import ctypes
import struct
import zlib

_ALL_PLANES = ctypes.c_ulong(-1)
_Z_PIXMAP = 2
_CLIENT_MESSAGE = 33
_LEFT_BUTTON = 1


class Picture:
    """Pixels as bytes of red, green and blue, row by row."""

    def __init__(self, width, height, rgb):
        self.width, self.height, self.rgb = width, height, rgb

    def __eq__(self, other):
        return isinstance(other, Picture) and (self.width, self.height, self.rgb) == (other.width, other.height, other.rgb)

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.rgb[at:at + 3])

    def crop(self, place):
        left, top, width, height = place
        rows = ((y * self.width + left) * 3 for y in range(top, top + height))
        return Picture(width, height, b"".join(self.rgb[at:at + width * 3] for at in rows))

    def lit(self):
        """How many pixels are not black."""
        return sum(1 for at in range(0, len(self.rgb), 3) if self.rgb[at:at + 3] != b"\0\0\0")

    def write_png(self, file):
        def chunk(kind, content):
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

        row = self.width * 3
        rows = b"".join(b"\0" + self.rgb[at:at + row] for at in range(0, len(self.rgb), row))
        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        file.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows, 1)) +
                         chunk(b"IEND", b""))

    @staticmethod
    def read_png(file):
        """Only the kind that the console writes: colours without opacity, rows without filters."""
        content, at, packed = file.read_bytes(), 8, b""
        while at < len(content):
            length, kind = struct.unpack_from(">I4s", content, at)
            body = content[at + 8:at + 8 + length]
            if kind == b"IHDR":
                width, height = struct.unpack_from(">II", body)
            elif kind == b"IDAT":
                packed += body
            at += length + 12
        rows, row = zlib.decompress(packed), width * 3 + 1
        assert not any(rows[::row]), "a filtered row"
        return Picture(width, height, b"".join(rows[at + 1:at + row] for at in range(0, len(rows), row)))


class _Image(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")] + [
        ("data", ctypes.c_void_p)] + [(name, ctypes.c_int) for name in (
            "byte_order", "bitmap_unit", "bitmap_bit_order", "bitmap_pad", "depth", "bytes_per_line", "bits_per_pixel")]


class _ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("room", ctypes.c_long * 12)]


def _library(name, **results):
    library = ctypes.CDLL(name)
    for function, result in results.items():
        getattr(library, function).restype = result
    return library


_ON_ERROR = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda display, error: 0)
_x11 = _library("libX11.so.6", XOpenDisplay=ctypes.c_void_p, XDefaultRootWindow=ctypes.c_ulong,
                XGetImage=ctypes.POINTER(_Image), XInternAtom=ctypes.c_ulong)
_xtst = _library("libXtst.so.6")
# A screen that grew smaller between two questions gives an error, whose default is to end the process.
_x11.XSetErrorHandler(_ON_ERROR)


class Display:
    def __init__(self, name):
        opened = _x11.XOpenDisplay(name.encode())
        if not opened:
            raise OSError(f"no X server at {name}")
        self._display = ctypes.c_void_p(opened)
        self._root = ctypes.c_ulong(_x11.XDefaultRootWindow(self._display))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        _x11.XCloseDisplay(self._display)

    def size(self):
        """Of the whole screen, as it is now."""
        width, height, other = ctypes.c_uint(), ctypes.c_uint(), ctypes.c_ulong()
        _x11.XGetGeometry(self._display, self._root, *[ctypes.byref(other)] * 3, ctypes.byref(width),
                          ctypes.byref(height), *[ctypes.byref(other)] * 2)
        return width.value, height.value

    def picture(self, place=None):
        """What the screen shows at left, top, width, height. None when that lies outside the screen."""
        left, top, width, height = place or (0, 0, *self.size())
        image = _x11.XGetImage(self._display, self._root, left, top, width, height, _ALL_PLANES, _Z_PIXMAP)
        if not image:
            return None
        line, data = image.contents.bytes_per_line, ctypes.c_void_p(image.contents.data)
        assert image.contents.bits_per_pixel == 32 and line == width * 4, "expected a server of depth 24"
        pixels = ctypes.string_at(data, line * height)
        _x11.XFree(data)
        _x11.XFree(image)
        rgb = bytearray(width * height * 3)
        for channel in range(3):
            rgb[channel::3] = pixels[2 - channel::4]
        return Picture(width, height, bytes(rgb))

    def ask_to_close(self, window):
        """As the cross in a window's frame does."""
        def atom(name):
            return _x11.XInternAtom(self._display, name, False)

        message = _ClientMessage(type=_CLIENT_MESSAGE, window=window, message_type=atom(b"WM_PROTOCOLS"), format=32)
        message.data[0] = atom(b"WM_DELETE_WINDOW")
        _x11.XSendEvent(self._display, ctypes.c_ulong(window), False, ctypes.c_long(0), ctypes.byref(message))
        _x11.XSync(self._display, False)

    def point_at(self, x, y):
        _xtst.XTestFakeMotionEvent(self._display, -1, x, y, ctypes.c_ulong(0))
        _x11.XSync(self._display, False)

    def click(self):
        """The left button, where the pointer is."""
        for pressed in (True, False):
            _xtst.XTestFakeButtonEvent(self._display, _LEFT_BUTTON, pressed, ctypes.c_ulong(0))
        _x11.XFlush(self._display)

    def press(self, keysym):
        code = _x11.XKeysymToKeycode(self._display, ctypes.c_ulong(keysym))
        for pressed in (True, False):
            _xtst.XTestFakeKeyEvent(self._display, code, pressed, ctypes.c_ulong(0))
        _x11.XFlush(self._display)
