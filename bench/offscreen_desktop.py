"""A desktop without a screen for measurements: Xvfb with a small window manager, and a look at its pixels.

Used by bench/startup and bench/memory. Touches no display that is there already, and no player's own files:
the measured program gets empty data and settings folders.
"""
import ctypes
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

WIDTH, HEIGHT = 1280, 1024
STRIP = 2  # rows of pixels that a look takes: it must not keep a core from what it looks at
ROOT = pathlib.Path(__file__).resolve().parent.parent


class XImage(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.POINTER(ctypes.c_uint32))]  # as far as is read here


class Desktop:
    """Use with `with`. Everything started here ends with it."""

    def __enter__(self):
        self.children = []
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="vantri-bench-"))
        read_end, write_end = os.pipe()
        self.children.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end) as number:
            self.display = ":" + number.readline().strip()
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb",
            "HOME": str(self.home), "XDG_DATA_HOME": str(self.home / "data"),
            "XDG_CONFIG_HOME": str(self.home / "config"), "XDG_RUNTIME_DIR": str(self.home),
        }
        self.children.append(subprocess.Popen(["openbox", "--sm-disable"], env=self.environment,
                                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        self.open_display()
        time.sleep(1)  # the window manager settles
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            end(child)
        shutil.rmtree(self.home, ignore_errors=True)

    def open_display(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                                     ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self.x.XGetImage.restype = ctypes.POINTER(XImage)
        self.x.XDestroyImage.argtypes = [ctypes.POINTER(XImage)]
        self.connection = self.x.XOpenDisplay(self.display.encode())
        if not self.connection:
            raise RuntimeError(f"no connection to {self.display}")
        self.root = self.x.XDefaultRootWindow(self.connection)

    def colours(self):
        """How many colours stand in a strip across the middle of the screen; the bare desktop has one."""
        all_planes, z_pixmap = 0xFFFFFFFF, 2
        image = self.x.XGetImage(self.connection, self.root, 0, (HEIGHT - STRIP) // 2, WIDTH, STRIP, all_planes,
                                 z_pixmap)
        count = len(set(image.contents.data[0:WIDTH * STRIP]))
        self.x.XDestroyImage(image)
        return count

    def start(self, program, **extra):
        child = subprocess.Popen([str(program)], env={**self.environment, **extra}, cwd=self.home,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.children.append(child)
        return child

    def wait_for_picture(self, child, seconds=15):
        """Until a window with a picture in it stands on the screen."""
        limit = time.monotonic() + seconds
        while self.colours() < 8:
            if child.poll() is not None:
                raise RuntimeError(f"the program ended with {child.returncode} before it showed a window")
            if time.monotonic() > limit:
                raise RuntimeError(f"no window within {seconds} s")
            time.sleep(0.001)

    def wait_for_bare(self, seconds=5):
        limit = time.monotonic() + seconds
        while self.colours() > 1 and time.monotonic() < limit:
            time.sleep(0.01)


def end(child):
    if child.poll() is None:
        child.terminate()
        try:
            child.wait(3)
        except subprocess.TimeoutExpired:
            child.kill()
            child.wait()
