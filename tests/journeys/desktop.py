"""A private X desktop with a person in front of it.

Starts Xvfb and openbox on a free display, runs a copy of the staged
program folder with a home of its own, finds windows by their captions,
clicks, drags and types with xdotool and looks at the screen through
screenshots. Every wait polls: a loaded machine only makes it slower.
"""

import fcntl
import os
import re
import shutil
import signal
import stat
import subprocess
import time


class JourneyFailed(Exception):
    """What a person would have seen go wrong (or why no one could look)."""


def need(condition, reason):
    if not condition:
        raise JourneyFailed(reason)


# The display numbers the journeys may take, first free one wins.
DISPLAYS = os.environ.get("QOR_JOURNEY_DISPLAYS", "121-139")
SCREEN = (1280, 1024)
# How long a window or file may take to appear on a busy machine.
PATIENCE = float(os.environ.get("QOR_JOURNEY_PATIENCE", "40"))


def display_numbers():
    first, _, last = DISPLAYS.partition("-")
    return range(int(first), int(last or first) + 1)


class Image:
    """A screenshot: RGB pixels, (0, 0) at the screen's top left."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    @staticmethod
    def from_ppm(raw):
        # P6, width, height, maximum value, one blank, then the pixels.
        fields = []
        pos = 0
        while len(fields) < 4:
            while raw[pos:pos + 1].isspace():
                pos += 1
            if raw[pos:pos + 1] == b"#":
                pos = raw.index(b"\n", pos) + 1
                continue
            end = pos
            while not raw[end:end + 1].isspace():
                end += 1
            fields.append(raw[pos:end])
            pos = end
        need(fields[0] == b"P6" and fields[3] == b"255", "the screenshot is not an 8-bit PPM")
        width, height = int(fields[1]), int(fields[2])
        return Image(width, height, raw[pos + 1:pos + 1 + width * height * 3])

    def pixel(self, x, y):
        i = (y * self.width + x) * 3
        return tuple(self.data[i:i + 3])

    def region(self, left, top, width, height):
        for y in range(max(0, top), min(self.height, top + height)):
            for x in range(max(0, left), min(self.width, left + width)):
                yield self.pixel(x, y)

    def count(self, rect, wanted, tolerance=0):
        return sum(1 for p in self.region(*rect) if distance(p, wanted) <= tolerance)

    def commonest(self, rect):
        seen = {}
        for p in self.region(*rect):
            seen[p] = seen.get(p, 0) + 1
        return max(seen, key=seen.get) if seen else None

    def ink(self, rect):
        """The colour that stands out most from the commonest one (a caption's text)."""
        back = self.commonest(rect)
        best = back
        for p in self.region(*rect):
            if distance(p, back) > distance(best, back):
                best = p
        return best


def distance(a, b):
    return max(abs(a[i] - b[i]) for i in range(3))


class Window:
    def __init__(self, desktop, wid, caption):
        self.desktop, self.wid, self.caption = desktop, wid, caption

    def geometry(self):
        """The client area on the screen: left, top, width, height.

        xwininfo tells the client's own corner; the window manager's frame
        and title bar are not part of it.
        """
        out = self.desktop.run(["xwininfo", "-id", self.wid])
        values = {}
        for key, label in (("x", "Absolute upper-left X"), ("y", "Absolute upper-left Y"),
                           ("w", "Width"), ("h", "Height")):
            m = re.search(r"^\s*" + label + r":\s*(-?\d+)", out, re.M)
            need(m, "xwininfo gave no %s for %r" % (label, self.caption))
            values[key] = int(m.group(1))
        return values["x"], values["y"], values["w"], values["h"]

    def at(self, x, y):
        left, top, _, _ = self.geometry()
        return left + x, top + y

    def click(self, x, y, button=1, double=False):
        self.desktop.click_at(*self.at(x, y), button=button, double=double)

    def activate(self):
        self.desktop.xdotool("windowactivate", "--sync", self.wid, check=False)

    def shot(self):
        """The client area's pixels, cut from a whole-screen shot."""
        left, top, width, height = self.geometry()
        return self.desktop.screenshot(), (left, top, width, height)

    def exists(self):
        return self.wid in self.desktop.window_ids(re.escape(self.caption))


class Desktop:
    def __init__(self, name, program_dir, work_dir):
        self.name = name
        self.program_src = os.path.abspath(program_dir)
        self.work = os.path.abspath(work_dir)
        self.program = os.path.join(self.work, "program")
        self.home = os.path.join(self.work, "home")
        self.files = os.path.join(self.work, "files")
        self.display = None
        self.display_claim = None
        self.processes = []
        self.editor = None
        self.shots = 0

    # --- setting up ---------------------------------------------------

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.stop()
            raise
        return self

    def __exit__(self, kind, value, trace):
        if kind is not None:
            self.keep_screenshot("failed")
        self.stop()
        return False

    def start(self):
        for tool in ("Xvfb", "openbox", "xdotool", "xwininfo", "import", "xprop"):
            need(shutil.which(tool), "%s is not installed (tools/install-deps.sh installs it)" % tool)
        need(os.path.isfile(os.path.join(self.program_src, "qor")),
             "no staged editor in %s (build first)" % self.program_src)
        if os.path.exists(self.work):
            shutil.rmtree(self.work)
        for folder in (self.home, self.files, os.path.join(self.work, "runtime")):
            os.makedirs(folder)
        os.chmod(os.path.join(self.work, "runtime"), 0o700)
        self.copy_program()
        self.start_display()
        self.start_window_manager()

    def copy_program(self):
        # The large programs are linked (nothing writes into them), the
        # rest copied, so the editor's own files stay this run's.
        def place(src, dst):
            if os.stat(src).st_size > 1 << 20 and os.access(src, os.X_OK):
                try:
                    os.link(src, dst)
                    return dst
                except OSError:
                    pass
            return shutil.copy2(src, dst)
        shutil.copytree(self.program_src, self.program, copy_function=place)

    def start_display(self):
        tried = []
        for n in display_numbers():
            if os.path.exists("/tmp/.X%d-lock" % n) or os.path.exists("/tmp/.X11-unix/X%d" % n):
                continue
            # Journeys run side by side: each holds a lock on its number, so
            # two never start their servers on the same display.
            claim = open("/tmp/.qor-journey-display-%d.lock" % n, "w")
            try:
                fcntl.flock(claim, fcntl.LOCK_EX | fcntl.LOCK_NB)
            except OSError:
                claim.close()
                continue
            log = open(os.path.join(self.work, "xvfb.log"), "wb")
            xvfb = subprocess.Popen(["Xvfb", ":%d" % n, "-screen", "0", "%dx%dx24" % SCREEN,
                                     "-nolisten", "tcp", "-noreset"], stdout=log, stderr=log)
            deadline = time.monotonic() + 15
            while time.monotonic() < deadline and xvfb.poll() is None:
                if os.path.exists("/tmp/.X11-unix/X%d" % n):
                    probe = subprocess.run(["xprop", "-root", "-display", ":%d" % n],
                                           capture_output=True)
                    if probe.returncode == 0 and xvfb.poll() is None:
                        self.display = ":%d" % n
                        self.display_claim = claim
                        self.processes.append(xvfb)
                        return
                time.sleep(0.1)
            tried.append(":%d" % n)
            self.end(xvfb)
            claim.close()
        raise JourneyFailed("no X display could start (tried %s of %s; Xvfb said: %s)"
                            % (", ".join(tried) or "none free", DISPLAYS, self.log_tail("xvfb.log")))

    def start_window_manager(self):
        log = open(os.path.join(self.work, "openbox.log"), "wb")
        self.processes.append(subprocess.Popen(["openbox", "--sm-disable"], env=self.env(),
                                               stdout=log, stderr=log))
        self.wait(lambda: "window id" in self.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"],
                                                  check=False),
                  "openbox did not take the display " + str(self.display), limit=20)

    def env(self):
        env = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "HOME": self.home,
            "DISPLAY": self.display,
            "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": os.path.join(self.work, "runtime"),
            "XDG_CONFIG_HOME": os.path.join(self.home, ".config"),
            "XDG_DATA_HOME": os.path.join(self.home, ".local", "share"),
            # The tests around run headless; a person's editor has a screen.
            "QT_QPA_PLATFORM": "xcb",
        }
        return env

    def start_editor(self, *args):
        log = open(os.path.join(self.work, "qor.log"), "wb")
        self.editor = subprocess.Popen([os.path.join(self.program, "qor"), *args], cwd=self.program,
                                       env=self.env(), stdout=log, stderr=log)
        self.processes.append(self.editor)
        return self.window(r"^QOR v2\.0")

    def stop(self):
        for p in reversed(self.processes):
            self.end(p)
        self.processes = []
        if self.display_claim:
            self.display_claim.close()
            self.display_claim = None

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.send_signal(signal.SIGTERM)
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def log_tail(self, name, lines=5):
        try:
            with open(os.path.join(self.work, name), "rb") as f:
                return " | ".join(f.read().decode("utf-8", "replace").strip().splitlines()[-lines:])
        except OSError:
            return ""

    # --- looking -----------------------------------------------------------

    def run(self, args, check=True):
        done = subprocess.run(args, env=self.env(), capture_output=True, timeout=60)
        if check and done.returncode != 0:
            raise JourneyFailed("%s failed: %s" % (" ".join(args), done.stderr.decode(errors="replace").strip()))
        return done.stdout.decode("utf-8", "replace")

    def xdotool(self, *args, check=True):
        return self.run(["xdotool", *args], check=check)

    def wait(self, condition, reason, limit=None):
        started = time.monotonic()
        deadline = started + (limit or PATIENCE)
        while True:
            if self.editor is not None and self.editor.poll() is not None:
                raise JourneyFailed("the editor ended (%s) while waiting: %s; it said: %s"
                                    % (self.editor.returncode, reason, self.log_tail("qor.log")))
            value = condition()
            if value:
                if os.environ.get("QOR_JOURNEY_TRACE"):
                    print("%5.1f s for %s" % (time.monotonic() - started, reason))
                return value
            if time.monotonic() > deadline:
                raise JourneyFailed("waited in vain: " + reason)
            time.sleep(0.1)

    def window_ids(self, caption_pattern):
        out = self.xdotool("search", "--onlyvisible", "--name", caption_pattern, check=False)
        return [w for w in out.split() if w.isdigit()]

    def caption(self, wid):
        return self.xdotool("getwindowname", wid, check=False).strip()

    def window(self, caption_pattern, limit=None):
        """The visible window whose caption matches, once it shows."""
        def found():
            for wid in self.window_ids(caption_pattern):
                geometry = self.run(["xwininfo", "-id", wid], check=False)
                if "IsViewable" in geometry:
                    return wid
            return None
        wid = self.wait(found, "a window titled like %r" % caption_pattern, limit)
        return Window(self, wid, self.caption(wid))

    def gone(self, window, limit=None):
        self.wait(lambda: not window.exists(), "the window %r to close" % window.caption, limit)

    def captions(self):
        return [self.caption(w) for w in self.window_ids(".")]

    def screenshot(self):
        raw = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"], env=self.env(),
                             capture_output=True, timeout=60).stdout
        need(raw.startswith(b"P6"), "no screenshot could be taken")
        return Image.from_ppm(raw)

    def keep_screenshot(self, label):
        """A PNG of the screen beside the run's files, to look at afterwards."""
        if not self.display:
            return None
        self.shots += 1
        path = os.path.join(self.work, "%02d-%s.png" % (self.shots, label))
        subprocess.run(["import", "-silent", "-window", "root", path], env=self.env(),
                       capture_output=True, timeout=60)
        return path

    # --- acting ---------------------------------------------------------

    def move_to(self, x, y):
        # xdotool's --sync waits for a motion, which never comes when the
        # pointer already stands there.
        here = self.xdotool("getmouselocation", "--shell", check=False)
        if "X=%d\n" % x in here and "Y=%d\n" % y in here:
            return
        self.xdotool("mousemove", "--sync", str(x), str(y))

    def click_at(self, x, y, button=1, double=False):
        self.move_to(x, y)
        self.xdotool("click", *(["--repeat", "2", "--delay", "80"] if double else []), str(button))

    def drag(self, start, end, button=1, modifier=None):
        if modifier:
            self.xdotool("keydown", modifier)
        self.move_to(*start)
        self.xdotool("mousedown", str(button))
        steps = 6
        for i in range(1, steps + 1):
            x = start[0] + (end[0] - start[0]) * i // steps
            y = start[1] + (end[1] - start[1]) * i // steps
            self.move_to(x, y)
            time.sleep(0.03)
        self.xdotool("mouseup", str(button))
        if modifier:
            self.xdotool("keyup", modifier)

    def type(self, text):
        """Types as a person does, into whatever has the focus."""
        lines = text.split("\n")
        for i, line in enumerate(lines):
            if line:
                self.xdotool("type", "--delay", "25", "--", line)
            if i < len(lines) - 1:
                self.key("Return")

    def key(self, *keys):
        self.xdotool("key", "--delay", "40", *keys)

    def answer_file_dialog(self, caption_pattern, path):
        """A file dialog answered by typing the path into its name field."""
        dialog = self.window(caption_pattern)
        dialog.activate()
        # The name field holds the focus when the dialog opens.
        self.key("ctrl+a")
        self.type(path)
        self.key("Return")
        self.gone(dialog)

    def wait_for_file(self, path, reason):
        self.wait(lambda: os.path.isfile(path) and os.path.getsize(path) > 0, reason)
        # Written in one go by the editor; give a partial write the time to end.
        size = -1
        while size != os.path.getsize(path):
            size = os.path.getsize(path)
            time.sleep(0.2)
        return path

    def file(self, name):
        return os.path.join(self.files, name)


def read_project(path):
    """A saved project: its lines (CR LF, Windows-1252) as text."""
    with open(path, "rb") as f:
        raw = f.read()
    need(b"\r\n" in raw, "%s has no CR LF lines" % path)
    return raw.decode("cp1252").split("\r\n")


def section(lines, header):
    """The lines of one "[...]" section, up to the next header."""
    need(header in lines, "the project has no %s section" % header)
    start = lines.index(header) + 1
    end = start
    while end < len(lines) and not (lines[end].startswith("[") and lines[end].endswith("]")):
        end += 1
    return lines[start:end]


def write_bmp(path, width, height, colour):
    """A plain 24-bit picture of one colour, for the image dialogs."""
    row = bytes((colour[2], colour[1], colour[0])) * width
    pad = (4 - len(row) % 4) % 4
    pixels = (row + b"\0" * pad) * height
    header = b"BM" + (54 + len(pixels)).to_bytes(4, "little") + b"\0\0\0\0" + (54).to_bytes(4, "little")
    info = (40).to_bytes(4, "little") + width.to_bytes(4, "little") + height.to_bytes(4, "little")
    info += (1).to_bytes(2, "little") + (24).to_bytes(2, "little") + b"\0" * 24
    with open(path, "wb") as f:
        f.write(header + info + pixels)
    os.chmod(path, stat.S_IRUSR | stat.S_IWUSR | stat.S_IRGRP | stat.S_IROTH)
    return path
