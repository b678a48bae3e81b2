#!/usr/bin/env python3
"""The web menu in a real browser: menus exported by `qorc html`, opened from
their folder (file://) in headless Chromium driven by chromedriver, or in
headless Firefox ESR driven through its own remote protocol (marionette.py).

    web_player_test.py PROGRAM_FOLDER STATEMENTS_PROGRAM [chromium|firefox]

PROGRAM_FOLDER is the staged program folder (qorc, qorbake, qorplayer, web/);
the Linux player's screenshot is taken on X display :209 for Chromium, :210
for Firefox (Xvfb; QOR_WEB_DISPLAY=N takes N and N + 1 instead).
STATEMENTS_PROGRAM prints every statement of the script assistant.
A browser that cannot start fails the check, with the reason.
"""
import base64
import math
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import zlib

FAILURES = []


def check(name, ok, detail=''):
    if not ok:
        FAILURES.append(name)
        print('FAILED: %s %s' % (name, detail))


# ---- files of a test menu ---------------------------------------------------

def bmp(path, width, height, pixel):
    """A 24-bit BMP; pixel(x, y) gives (r, g, b)."""
    row = (width * 3 + 3) & ~3
    body = bytearray()
    for y in range(height - 1, -1, -1):
        line = bytearray()
        for x in range(width):
            r, g, b = pixel(x, y)
            line += bytes((b, g, r))
        body += line + b'\0' * (row - len(line))
    header = struct.pack('<2sIHHI', b'BM', 54 + len(body), 0, 0, 54)
    info = struct.pack('<IiiHHIIiiII', 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    with open(path, 'wb') as f:
        f.write(header + info + body)


def wav(path, seconds=3):
    """A quiet 8 kHz tone, long enough to be caught playing."""
    samples = bytes(128 + int(20 * math.sin(2 * math.pi * 440 * n / 8000)) for n in range(8000 * seconds))
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 36 + len(samples)) + b'WAVEfmt ' +
                struct.pack('<IHHIIHH', 16, 1, 1, 8000, 8000, 1, 8) + b'data' + struct.pack('<I', len(samples)) + samples)


def mp4(path, seconds=2, rate=8000, block=4096):
    """A sound-only MP4 film (FLAC stored verbatim, 16 bits): a file both
    browsers play in a <video>, made without any encoder at hand."""
    def crc(data, poly, bits):
        top, mask, c = 1 << (bits - 1), (1 << bits) - 1, 0
        for byte in data:
            c ^= byte << (bits - 8)
            for _ in range(8):
                c = ((c << 1) ^ poly if c & top else c << 1) & mask
        return c

    def box(kind, *parts):
        body = b''.join(parts)
        return struct.pack('>I', 8 + len(body)) + kind + body

    def full(kind, flags, *parts):
        return box(kind, struct.pack('>I', flags), *parts)

    frames = rate * seconds // block
    total = frames * block
    samples = []
    for n in range(frames):
        head = bytes((0xff, 0xf8, 0xc4, 0x08, n))
        head += bytes((crc(head, 0x07, 8), 0x02))
        body = head + b''.join(struct.pack('>h', int(3000 * math.sin(2 * math.pi * 440 * (n * block + k) / rate)))
                               for k in range(block))
        samples.append(body + crc(body, 0x8005, 16).to_bytes(2, 'big'))
    info = struct.pack('>HHxxxxxx', block, block) + ((rate << 44) | (15 << 36) | total).to_bytes(8, 'big') + bytes(16)
    matrix = struct.pack('>9I', 0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000)
    entry = box(b'fLaC', bytes(6), struct.pack('>HQHHHHI', 1, 0, 1, 16, 0, 0, rate << 16),
                full(b'dfLa', 0, b'\x80\x00\x00\x22' + info))

    def moov(offset):
        stbl = box(b'stbl', full(b'stsd', 0, struct.pack('>I', 1), entry),
                   full(b'stts', 0, struct.pack('>III', 1, frames, block)),
                   full(b'stsc', 0, struct.pack('>IIII', 1, 1, frames, 1)),
                   full(b'stsz', 0, struct.pack('>II', 0, frames), b''.join(struct.pack('>I', len(s)) for s in samples)),
                   full(b'stco', 0, struct.pack('>II', 1, offset)))
        minf = box(b'minf', full(b'smhd', 0, bytes(4)), box(b'dinf', full(b'dref', 0, struct.pack('>I', 1), full(b'url ', 1))), stbl)
        mdia = box(b'mdia', full(b'mdhd', 0, struct.pack('>IIIIHH', 0, 0, rate, total, 0x55c4, 0)),
                   full(b'hdlr', 0, struct.pack('>I4s12x', 0, b'soun'), b'\0'), minf)
        trak = box(b'trak', full(b'tkhd', 3, struct.pack('>IIIII8xhhhH', 0, 0, 1, 0, total, 0, 0, 0x100, 0), matrix,
                                 struct.pack('>II', 0, 0)), mdia)
        return box(b'moov', full(b'mvhd', 0, struct.pack('>IIIIIH10x', 0, 0, rate, total, 0x10000, 0x100), matrix,
                                 bytes(24), struct.pack('>I', 2)), trak)

    ftyp = box(b'ftyp', b'isom', struct.pack('>I', 512), b'isomiso2mp41')
    head = ftyp + moov(0)
    with open(path, 'wb') as f:
        f.write(ftyp + moov(len(head) + 8) + box(b'mdat', *samples))


def background(x, y):
    # Bands of colour that differ at every pixel, so a shift of one shows.
    return ((x * 7) & 255, (y * 5) & 255, ((x + y) * 3) & 255)


def solid(colour):
    return lambda x, y: colour


NORMAL, HOVER, PRESSED, QUIT = (200, 30, 30), (30, 200, 30), (30, 30, 200), (220, 200, 20)
WIDTH, HEIGHT = 320, 200          # pixels; 15 twips each
BUTTON = (20, 20, 40, 20)         # x, y, width, height in pixels
QUIT_AT = (200, 150, 30, 30)
TEXT_AT = (20, 100, 120, 40)


def multi(text):
    return text.replace('\n', '\u00a4')


def project_text(shape=None, timer_script='Fenetre.Caption = "Tic"', click='MsgBox "Bonjour le monde"',
                 texts=1, buttons=True, hover_script='', window_hover='', extra_buttons=0, renamed=None,
                 transparency='', music='', kind='code', mask=None):
    lines = ['FICHIER .QOR - COMPATIBLE QOR V2.0 ET +', 'Pour télécharger QOR', 'Merci.',
             '[Format]', 'Editeur=QOR', 'Version=2.0.450', 'Fichier=1.1',
             '[Auteur]', 'Essai', 'essai@example.org', '', 'Menu web',
             '[Général]', 'fond.bmp', ' %d ' % (WIDTH * 15), ' %d ' % (HEIGHT * 15), ' 0 ',
             '(Icône par défaut)', "'para3", music,
             '[ParamsPlus]', '', ' 16777215 ', ' 1 ', ' 1 ', '200', multi(timer_script), '', ' 1 ', '', '',
             '[Autre]', transparency, multi(window_hover)] + ["'para%d" % n for n in range(3, 16)]
    if buttons:
        lines += ['[Bouton]', ' %d ' % (BUTTON[0] * 15), ' %d ' % (BUTTON[1] * 15),
                  'b_n.bmp', 'b_s.bmp', 'b_c.bmp', kind, multi(click), multi(hover_script), ' 0 ', ' 0 ', "'para4",
                  '[Bouton]', ' %d ' % (QUIT_AT[0] * 15), ' %d ' % (QUIT_AT[1] * 15),
                  'q.bmp', 'q.bmp', 'q.bmp', 'quitter', '', '', ' 0 ', ' 0 ', "'para4"]
    for n in range(extra_buttons):
        lines += ['[Bouton]', ' %d ' % ((n % 10) * 30 * 15), ' %d ' % ((n // 10) * 20 * 15),
                  'b_n.bmp', 'b_s.bmp', 'b_c.bmp', 'code', 'MsgBox %d' % n, '', ' 0 ', ' 0 ', "'para4"]
    for n in range(texts):
        x, y, w, h = TEXT_AT
        lines += ['[Texte]', 'Un texte %d' % n, ' 16777215 ', ' 0 ', ' 0 ', ' 0 ', 'Arial', ' 9 ', ' 0 ', ' 0 ',
                  ' %d ' % (y * 15), ' %d ' % (x * 15), ' %d ' % (w * 15), ' %d ' % (h * 15), '00',
                  'para1', 'para2', 'para3', 'para4']
    if shape:
        lines.append('[FormeMenu]')
        for x, y in shape:
            lines += ['X=%d' % (x * 15), 'Y=%d' % (y * 15)]
        lines.append('[/FormeMenu]')
    return '\r\n'.join(lines) + '\r\n'


def make_menu(work, name, **kw):
    """A project folder with its pictures; kw as project_text takes them."""
    folder = os.path.join(work, name)
    os.makedirs(folder)
    bmp(os.path.join(folder, 'fond.bmp'), WIDTH, HEIGHT, background)
    for f, c in (('b_n', NORMAL), ('b_s', HOVER), ('b_c', PRESSED)):
        bmp(os.path.join(folder, f + '.bmp'), BUTTON[2], BUTTON[3], solid(c))
    bmp(os.path.join(folder, 'q.bmp'), QUIT_AT[2], QUIT_AT[3], solid(QUIT))
    # The transparency picture: white is cut; by default the right half.
    bmp(os.path.join(folder, 'masque.bmp'), WIDTH, HEIGHT,
        kw.get('mask') or (lambda x, y: (255, 255, 255) if x >= WIDTH // 2 else (0, 0, 0)))
    if kw.get('music'):
        wav(os.path.join(folder, kw['music']))
    text = project_text(**kw)
    for old, new in kw.get('renamed', {}).items():
        # The same picture under a hostile name; None: the file is absent,
        # '' : it is there with no byte in it.
        text = text.replace(old, new[0])
        if new[1] is None:
            continue
        target = os.path.join(folder, new[0])
        if new[1] == '':
            open(target, 'wb').close()
        else:
            shutil.copy(os.path.join(folder, old), target)
    project = os.path.join(folder, 'menu.qor')
    with open(project, 'wb') as f:
        f.write(text.encode('cp1252'))
    return project


def export(program, project, out):
    os.makedirs(out, exist_ok=True)
    r = subprocess.run([os.path.join(program, 'qorc'), 'html', project, out + '/'], capture_output=True, text=True)
    check('qorc html ' + project, r.returncode == 0, r.stderr)
    return os.path.join(out, 'qor_menu2.htm')


# ---- screenshots --------------------------------------------------------------

def decode_png(data):
    """(width, height, rows of (r, g, b)) of an 8-bit RGB or RGBA PNG."""
    pos, chunks = 8, []
    width = height = 0
    channels = 3
    while pos < len(data):
        length, kind = struct.unpack('>I4s', data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        if kind == b'IHDR':
            width, height, depth, colour = struct.unpack('>IIBB', body[:10])
            assert depth == 8 and colour in (2, 6), 'unexpected PNG'
            channels = 4 if colour == 6 else 3
        elif kind == b'IDAT':
            chunks.append(body)
        pos += 12 + length
    raw = zlib.decompress(b''.join(chunks))
    stride = width * channels
    rows, prev = [], bytearray(stride)
    for y in range(height):
        f = raw[y * (stride + 1)]
        line = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            a = line[i - channels] if i >= channels else 0
            b = prev[i]
            c = prev[i - channels] if i >= channels else 0
            if f == 1:
                line[i] = (line[i] + a) & 255
            elif f == 2:
                line[i] = (line[i] + b) & 255
            elif f == 3:
                line[i] = (line[i] + (a + b) // 2) & 255
            elif f == 4:
                p = a + b - c
                pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
                line[i] = (line[i] + (a if pa <= pb and pa <= pc else b if pb <= pc else c)) & 255
        rows.append([tuple(line[x * channels:x * channels + 3]) for x in range(width)])
        prev = line
    return width, height, rows


def shot(driver):
    return decode_png(driver.get_screenshot_as_png())[2]


def inside(x, y, rect):
    return rect[0] <= x < rect[0] + rect[2] and rect[1] <= y < rect[1] + rect[3]


def compare(rows, origin, expected, name, skip=()):
    """Every pixel of the window against expected(x, y); None where cut."""
    ox, oy = origin
    wrong = []
    for y in range(HEIGHT):
        for x in range(WIDTH):
            if any(inside(x, y, r) for r in skip):
                continue
            want = expected(x, y)
            got = rows[oy + y][ox + x]
            if got != want:
                wrong.append((x, y, got, want))
    check(name, not wrong, '%d pixels differ, first %s' % (len(wrong), wrong[:3]))


# ---- the browsers ----------------------------------------------------------------

def start_browser(kind, profile):
    """Headless Chromium through chromedriver, or Firefox ESR through its own
    remote protocol; either answers the same calls (get, execute_script,
    execute_async_script, get_screenshot_as_png, perform, quit)."""
    if kind == 'firefox':
        import marionette
        try:
            return marionette.Firefox.start(profile)
        except Exception as e:  # the reason is the whole message
            print('FAILED: headless Firefox could not start: %s' % e)
            sys.exit(1)
    try:
        from selenium import webdriver
        from selenium.webdriver.chrome.service import Service
        from selenium.webdriver.remote.command import Command
    except ImportError as e:
        print('FAILED: python3-selenium is missing (%s); tools/install-deps.sh installs it' % e)
        sys.exit(1)
    options = webdriver.ChromeOptions()
    options.binary_location = shutil.which('chromium') or '/usr/bin/chromium'
    # Sound waits for a click or a key, as for any visitor.
    for a in ('--headless', '--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
              '--disable-component-update', '--disable-sync', '--window-size=640,480', '--hide-scrollbars',
              '--force-device-scale-factor=1', '--allow-file-access-from-files=false',
              '--autoplay-policy=user-gesture-required', '--user-data-dir=' + profile):
        options.add_argument(a)
    try:
        driver = webdriver.Chrome(service=Service(shutil.which('chromedriver') or '/usr/bin/chromedriver'),
                                  options=options)
    except Exception as e:  # the reason is the whole message
        print('FAILED: headless Chromium could not start: %s' % e)
        sys.exit(1)

    def perform(actions):
        driver.execute(Command.W3C_ACTIONS, {'actions': actions})
        driver.execute(Command.W3C_CLEAR_ACTIONS)
    driver.perform = perform
    return driver


# The visitor's mouse, by page coordinates: the browser's own input, so the
# page sees trusted events (sound may start, the pointer enters and leaves).
def mouse(driver, *steps):
    actions = []
    for step in steps:
        if step[0] == 'move':
            actions.append({'type': 'pointerMove', 'x': int(step[1]), 'y': int(step[2]), 'duration': 0,
                            'origin': 'viewport'})
        else:
            actions.append({'type': 'pointer' + step[0].capitalize(), 'button': step[1] if len(step) > 1 else 0})
    driver.perform([{'type': 'pointer', 'id': 'mouse', 'parameters': {'pointerType': 'mouse'}, 'actions': actions}])


def centre(driver, selector, index=0):
    return driver.execute_script(
        "var r = document.querySelectorAll(arguments[0])[arguments[1]].getBoundingClientRect();"
        "return [Math.floor(r.left + r.width / 2), Math.floor(r.top + r.height / 2)];", selector, index)


def hover(driver, selector, index=0):
    mouse(driver, ('move',) + tuple(centre(driver, selector, index)))


def click(driver, selector, index=0, button=0):
    mouse(driver, ('move',) + tuple(centre(driver, selector, index)), ('down', button), ('up', button))


def answer_box(driver):
    click(driver, '.qor-box-buttons button')
    wait(driver, "return !document.querySelector('.qor-box')", 'box closes')


def wait(driver, script, what, seconds=20):
    end = time.time() + seconds
    while time.time() < end:
        value = driver.execute_script(script)
        if value:
            return value
        time.sleep(0.05)
    check(what, False, '(waited %ss for: %s)' % (seconds, script))
    return None


def open_menu(driver, page):
    driver.get('file://' + page)
    return wait(driver, "return document.body.getAttribute('data-qor') === 'shown'", 'menu shown ' + page)


# Runs one statement in the page's player; any box it opens is answered with
# its first button, as a visitor would.
RUN_STATEMENT = """
var done = arguments[arguments.length - 1];
var answer = setInterval(function () {
  var b = document.querySelector('.qor-box-buttons button'); if (b) b.click(); }, 5);
Promise.resolve(qorCore.qorCall('qor_run_statement', 'string', ['string'], [arguments[0]]))
  .then(function (r) { clearInterval(answer); done(r); }, function (e) { clearInterval(answer); done('JS ' + e); });
"""


def linux_window(program, autorun, display=':209'):
    """The Linux player's window of a compiled menu, on a private X display
    with no window manager: rows of (r, g, b), or None (the check fails)."""
    xvfb = shutil.which('Xvfb')
    if not xvfb or not shutil.which('xdotool') or not shutil.which('import'):
        check('Linux player screenshot', False, 'Xvfb, xdotool and imagemagick are needed')
        return None
    env = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM='xcb')
    server = subprocess.Popen([xvfb, display, '-screen', '0', '800x600x24'], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    player = None
    try:
        time.sleep(1)
        player = subprocess.Popen([os.path.join(program, 'qorplayer'), autorun], env=env, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL)
        windows = []
        for _ in range(100):
            windows = subprocess.run(['xdotool', 'search', '--onlyvisible', '--class', 'qorplayer'], env=env,
                                     capture_output=True, text=True).stdout.split()
            if windows:
                break
            time.sleep(0.1)
        if not windows:
            check('Linux player screenshot', False, 'no qorplayer window on ' + display)
            return None
        time.sleep(0.5)
        png = os.path.join(os.path.dirname(autorun), 'linux.png')
        subprocess.run(['import', '-window', 'root', 'PNG24:' + png], env=env, check=True)
        geometry = subprocess.run(['xdotool', 'getwindowgeometry', '--shell', windows[0]], env=env,
                                  capture_output=True, text=True).stdout
        g = dict(line.split('=') for line in geometry.split())
        with open(png, 'rb') as f:
            rows = decode_png(f.read())[2]
        x, y = int(g['X']), int(g['Y'])
        return [row[x:x + WIDTH] for row in rows[y:y + HEIGHT]]
    finally:
        if player:
            player.kill()
        server.kill()


def responsive(driver, what):
    t = time.time()
    driver.execute_script('return 1')
    check(what + ': the page answers', time.time() - t < 2, '%.1f s' % (time.time() - t))


def hostile(driver, program, work):
    """Menus the other players also get: the page says what is wrong where
    something is, and keeps answering."""
    # Names with accents, blanks and quotes; missing and empty pictures: the
    # picture shows, or its place keeps the window's colour or a grey box
    # (75 by 25) that can still be clicked.
    grey, white = (212, 208, 200), (255, 255, 255)
    odd_name = 'fond d\'été "n°1" & #2 50%.bmp'
    for name, renamed, point, colour, button_size in (
            ('background named with accents, blanks and quotes', {'fond.bmp': (odd_name, 'copy')},
             (150, 60), background(150, 60), [40, 20]),
            ('button picture named so', {'b_n.bmp': ('b « n° 1 » l\'été.bmp', 'copy')},
             (BUTTON[0] + 5, BUTTON[1] + 5), NORMAL, [40, 20]),
            ('missing button picture', {'b_n.bmp': ('absent.bmp', None)}, (BUTTON[0] + 5, BUTTON[1] + 5), grey, [75, 25]),
            ('empty button picture', {'b_n.bmp': ('vide é.bmp', '')}, (BUTTON[0] + 5, BUTTON[1] + 5), grey, [75, 25]),
            ('empty background', {'fond.bmp': ('vide.bmp', '')}, (150, 60), white, [40, 20])):
        page = export(program, make_menu(work, name, texts=0, timer_script='', renamed=renamed),
                      os.path.join(work, 'out ' + name))
        open_menu(driver, page)
        left, top = window_rect(driver)[:2]
        time.sleep(0.2)
        got = shot(driver)[int(top) + point[1]][int(left) + point[0]]
        size = driver.execute_script("var r = document.querySelectorAll('.qor-button')[0].getBoundingClientRect();"
                                     "return [r.width, r.height];")
        check(name, got == colour and size == button_size, (got, size))
        click(driver, '.qor-button')
        text = wait(driver, "var b = document.querySelector('.qor-box-text'); return b && b.textContent",
                    name + ': its button still answers')
        check(name + ': its button still answers', text == 'Bonjour le monde', text)
        answer_box(driver)

    # Endless scripts in every event: each is stopped with its message.
    endless = 'Do\nLoop'
    menu = make_menu(work, 'endless', timer_script=endless, click=endless, hover_script=endless,
                     window_hover=endless)
    open_menu(driver, export(program, menu, os.path.join(work, 'out endless')))
    for event in ('timer', 'hover', 'click'):
        if event == 'hover':
            hover(driver, '.qor-button')
        elif event == 'click':
            driver.execute_script("document.querySelectorAll('.qor-button')[0].dispatchEvent("
                                  "new MouseEvent('mousedown', {bubbles: true, button: 0}));"
                                  "document.querySelectorAll('.qor-button')[0].dispatchEvent("
                                  "new MouseEvent('mouseup', {bubbles: true, button: 0}));")
        text = wait(driver, "var b = document.querySelector('.qor-box-text'); return b && b.textContent",
                    'endless %s script stopped' % event, 60)
        check('endless %s script: its message' % event, bool(text) and 'n°18' in text, text)
        responsive(driver, 'endless ' + event)
        driver.execute_script("var b = document.querySelector('.qor-box-buttons button'); if (b) b.click();")

    # Cut data: the page says the menu cannot be read, and shows no window.
    with open(os.path.join(os.path.dirname(plain_page(work)), 'qor_menu2', 'menu.js')) as f:
        script = f.read()
    cut_dir = os.path.join(work, 'out cut data')
    shutil.copytree(os.path.dirname(plain_page(work)), cut_dir)
    start = script.index('"menu.dat":"') + len('"menu.dat":"')
    end = script.index('"', start)
    data = base64.b64decode(script[start:end])
    with open(os.path.join(cut_dir, 'qor_menu2', 'menu.js'), 'w') as f:
        f.write(script[:start] + base64.b64encode(data[:len(data) // 2]).decode() + script[end:])
    driver.get('file://' + os.path.join(cut_dir, 'qor_menu2.htm'))
    title = wait(driver, "var b = document.querySelector('.qor-box-title'); return b && b.textContent", 'cut data told')
    check('cut data: an error box', title == 'Erreur !', title)

    # 10 000 text boxes and a 100 000-point outline.
    outline = [(int(WIDTH / 2 + WIDTH / 2 * math.cos(k * 2 * math.pi / 100000)),
                int(HEIGHT / 2 + HEIGHT / 2 * math.sin(k * 2 * math.pi / 100000))) for k in range(100000)]
    big = make_menu(work, 'big', texts=10000, shape=outline)
    open_menu(driver, export(program, big, os.path.join(work, 'out big')))
    responsive(driver, '10 000 text boxes')
    wait(driver, "return document.querySelectorAll('.qor-text').length === 10000", 'all text boxes made', 60)
    corner = shot(driver)
    left, top = window_rect(driver)[:2]
    check('100 000-point outline cuts the corner', corner[int(top) + 2][int(left) + 2] == (255, 255, 255),
          corner[int(top) + 2][int(left) + 2])


# Recursion: statement, the error it ends with ('' for none), the caption after.
DEEP_SCRIPTS = (
    ('Fenetre.Caption = "avant"\nFunction F(x)\nF = F(x + 1)\nEnd Function\nFenetre.Caption = F(1)',
     'n°28', 'avant'),
    ('Function F(x)\nF = 1 + (2 * (3 + Abs(F(x + 1))))\nEnd Function\nFenetre.Caption = F(1)', 'n°28', 'avant'),
    ('Sub S(x)\nIf x < 400 Then\nS x + 1\nElse\nFenetre.Caption = "fond " & MsgBox("Au fond")\nEnd If\nEnd Sub\nS 1',
     '', 'fond 1'),
    ('Function G(x)\nIf x >= 300 Then\nG = x\nElse\nG = G(x + 1)\nEnd If\nEnd Function\nFenetre.Caption = G(1)',
     '', '300'),
)

# Statement, what the browser's own box shows, how it is answered, the caption after.
NATIVE_BOXES = (
    ('Fenetre.Caption = CStr(MsgBox("Continuer ?", vbYesNo))', 'Continuer ?', 'accept', '6'),
    ('Fenetre.Caption = CStr(MsgBox("Continuer ?", vbYesNo))', 'Continuer ?', 'dismiss', '7'),
    ('Fenetre.Caption = CStr(MsgBox("Annuler ?", vbOKCancel))', 'Annuler ?', 'dismiss', '2'),
    ('Fenetre.Caption = CStr(MsgBox("Info"))', 'Info', 'accept', '1'),
    ('Fenetre.Caption = InputBox("Votre nom ?", "Titre", "Marie")', 'Votre nom ?', 'Paul', 'Paul'),
    ('Fenetre.Caption = "[" & InputBox("Votre nom ?") & "]"', 'Votre nom ?', 'dismiss', '[]'),
)


def without_suspending(driver, page):
    added = driver.execute_cdp_cmd('Page.addScriptToEvaluateOnNewDocument',
                                   {'source': 'delete WebAssembly.Suspending; delete WebAssembly.promising;'})
    try:
        open_menu(driver, page)
        for statement, shown, answer, caption in NATIVE_BOXES:
            # Started from a timer: the browser's box blocks the page until answered.
            driver.execute_script("var s = arguments[0]; window.qorRan = null; setTimeout(function () {"
                                  " qorCore.qorCall('qor_run_statement', 'string', ['string'], [s])"
                                  ".then(function (r) { window.qorRan = r; }); }, 0);", statement)
            alert = None
            end = time.time() + 10
            while alert is None and time.time() < end:
                try:
                    alert = driver.switch_to.alert
                    text = alert.text
                except Exception:
                    alert = None
                    time.sleep(0.05)
            if alert is None:
                check('browser box opens', False, statement)
                continue
            check('browser box text', shown in text, (statement, text))
            if answer == 'accept':
                alert.accept()
            elif answer == 'dismiss':
                alert.dismiss()
            else:
                alert.send_keys(answer)
                alert.accept()
            ran = wait(driver, 'return window.qorRan !== null && [window.qorRan, document.title]', 'statement ends')
            check('browser box answer reaches the script', ran == ['', caption], (statement, answer, ran))
    finally:
        driver.execute_cdp_cmd('Page.removeScriptToEvaluateOnNewDocument', added)


def plain_page(work):
    return os.path.join(work, 'out plain', 'qor_menu2.htm')


def window_rect(driver):
    """The menu window as the page shows it: [left, top, width, height], or
    None while it is hidden."""
    return driver.execute_script(
        "var n = document.getElementById('qor-window'); if (getComputedStyle(n).display === 'none') return null;"
        "var r = n.getBoundingClientRect(); return [r.left, r.top, r.width, r.height];")


def script_value(driver, expression):
    """What an expression of the menu's scripts gives, through the caption."""
    error = driver.execute_async_script(RUN_STATEMENT, 'Fenetre.Caption = CStr(%s)' % expression)
    check('statement runs: ' + expression, error == '', error)
    return driver.execute_script('return document.title')


def moves_and_states(driver, program, work):
    """Dragging the background moves the window and the scripts see where;
    minimised it leaves a bar that brings it back; maximised it fills the page."""
    open_menu(driver, export(program, make_menu(work, 'still', timer_script=''), os.path.join(work, 'out still')))
    left, top, width, height = window_rect(driver)
    vw, vh = driver.execute_script('return [innerWidth, innerHeight]')
    # A press on a button or a text box is theirs: only the background drags.
    for name, (x, y), (dx, dy), moved in (
            ('background', (150, 60), (40, 25), True),
            ('button', (BUTTON[0] + 5, BUTTON[1] + 5), (30, 30), False),
            ('background again', (150, 60), (-70, -10), True)):
        mouse(driver, ('move', left + x, top + y), ('down',), ('move', left + x + dx // 2, top + y + dy // 2),
              ('move', left + x + dx, top + y + dy), ('up',))
        if driver.execute_script("return !!document.querySelector('.qor-box')"):
            answer_box(driver)
        want = [left + dx, top + dy] if moved else [left, top]
        # A script redraws the window: it stays where it was dropped.
        driver.execute_async_script(RUN_STATEMENT, 'Fenetre.BackColor = RGB(1, 2, 3)')
        check('drag on the %s' % name, window_rect(driver)[:2] == want, (window_rect(driver), want))
        left, top = want
    check('scripts read where the window was dropped',
          script_value(driver, 'Fenetre.Left & "," & Fenetre.Top') == '%d,%d' % (left * 15, top * 15),
          driver.execute_script('return document.title'))

    restore = ("var b = document.querySelector('.qor-restore');"
               "return !!b && getComputedStyle(b).display !== 'none';")
    for step, act, rect, bar, state in (
            ('minimised from the context menu', 'Réduire', None, True, '1'),
            ('restored from its bar', 'bar', [left, top, width, height], False, '0'),
            ('maximised by a script', 'Fenetre.WindowState = 2', [0, 0, vw, vh], False, '2'),
            ('normal again by a script', 'Fenetre.WindowState = 0', [left, top, width, height], False, '0'),
            ('minimised by a script', 'Fenetre.WindowState = 1', None, True, '1')):
        if act == 'Réduire':
            mouse(driver, ('move', left + 150, top + 60), ('down', 2), ('up', 2))
            entries = wait(driver, "return Array.from(document.querySelectorAll('.qor-context-item'))"
                                   ".map(function (e) { return e.textContent; })", 'context menu')
            check('context menu entries', entries == ['Réduire', 'Fermer', 'A propos...'], entries)
            click(driver, '.qor-context-item', 0)
        elif act == 'bar':
            click(driver, '.qor-restore')
        else:
            driver.execute_async_script(RUN_STATEMENT, act)
        check('window %s: as shown' % step, window_rect(driver) == rect and
              driver.execute_script(restore) == bar, (window_rect(driver), rect))
        check('window %s: as scripts see it' % step, script_value(driver, 'Fenetre.WindowState') == state,
              driver.execute_script('return document.title'))


def media(driver, program, work):
    """Music waits for the visitor's first click or key, then plays; a
    "vidéo" button plays in the page what the browser can play and opens the
    rest in a new tab."""
    for first, music in (('click', 'musique.wav'), ('key', 'musique d\'été "n°2" #3 50%.wav')):
        page = export(program, make_menu(work, 'music ' + first, timer_script='', music=music),
                      os.path.join(work, 'out music ' + first))
        open_menu(driver, page)
        playing = ("var a = document.querySelector('audio.qor-music');"
                   "return a ? (!a.paused && a.currentTime > 0 ? 'playing' : 'waiting') : 'none';")
        time.sleep(0.5)
        check('music before any %s' % first, driver.execute_script(playing) == 'waiting',
              driver.execute_script(playing))
        left, top = window_rect(driver)[:2]
        if first == 'click':
            mouse(driver, ('move', left + 150, top + 60), ('down',), ('up',))
        else:
            driver.perform([{'type': 'key', 'id': 'keyboard', 'actions': [{'type': 'keyDown', 'value': 'a'},
                                                                           {'type': 'keyUp', 'value': 'a'}]}])
        wait(driver, "var a = document.querySelector('audio.qor-music'); return !a.paused && a.currentTime > 0",
             'music after the first %s' % first)

    # A film the browser plays, one of a kind it plays but damaged, one of a
    # kind it does not know.
    for film, where in (('film.mp4', 'page'), ('film.webm', 'tab'), ('film.avi', 'tab')):
        out = os.path.join(work, 'out ' + film)
        page = export(program, make_menu(work, film, kind='vidéo', click=film, timer_script=''), out)
        if film == 'film.mp4':
            mp4(os.path.join(out, film))
        else:
            with open(os.path.join(out, film), 'wb') as f:
                f.write(b'\0' * 64)
        open_menu(driver, page)
        # What the page asks the browser to open in a tab (kept from opening,
        # so the menu's own tab stays in front), and what starts playing in
        # the page (headless Firefox has no sound card: its film stops at
        # once, after it started).
        driver.execute_script("window.tabs = []; window.open = function (u) { window.tabs.push(u); return null; };"
                              "window.played = []; document.addEventListener('playing', function (e) {"
                              " window.played.push(e.target.className + ' ' + e.target.src); }, true);")
        click(driver, '.qor-button', 0)
        if where == 'page':
            played = wait(driver, "return window.played.length && window.played", film + ' plays in the page')
            check('%s plays in the page' % film, bool(played) and len(played) == 1 and
                  played[0].startswith('qor-video ') and played[0].endswith('/' + film) and
                  driver.execute_script('return window.tabs') == [], played)
        else:
            tabs = wait(driver, "return window.tabs.length && window.tabs", film + ' in a new tab')
            check('%s opens in a new tab' % film, tabs == [film] and
                  not driver.execute_script("return !!document.querySelector('video')"), tabs)


def cuts(driver, program, work, looks):
    """The outline and the transparency picture's white cut the window; what
    both keep stays; a window cut away entirely keeps its rectangle."""
    white = (255, 255, 255)

    def corner(x, y):
        return (0, 0, 0) if x >= WIDTH - 10 and y >= HEIGHT - 10 else white

    def in_triangle(x, y):
        return x + 0.5 + (y + 0.5) * WIDTH / HEIGHT <= WIDTH     # pixel centre on the kept side

    triangle = [(0, 0), (WIDTH, 0), (0, HEIGHT)]
    for name, shape, mask, kept in (
            ('outline', triangle, None, in_triangle),
            ('transparency picture', None, lambda x, y: white if x >= WIDTH // 2 else (0, 0, 0),
             lambda x, y: x < WIDTH // 2),
            ('outline and picture', triangle, lambda x, y: white if y >= HEIGHT // 2 else (0, 0, 0),
             lambda x, y: in_triangle(x, y) and y < HEIGHT // 2),
            ('picture all white', None, lambda x, y: white, lambda x, y: True),
            ('outline and picture keep nothing in common', triangle, corner, lambda x, y: True)):
        menu = make_menu(work, 'cut ' + name, texts=0, shape=shape, mask=mask,
                         transparency='masque.bmp' if mask else '')
        open_menu(driver, export(program, menu, os.path.join(work, 'out cut ' + name)))
        left, top = window_rect(driver)[:2]
        time.sleep(0.2)
        compare(shot(driver), (int(left), int(top)),
                lambda x, y: looks(NORMAL)(x, y) if kept(x, y) else white, 'cut: ' + name)


def main():
    program, statements_program = sys.argv[1], sys.argv[2]
    kind = sys.argv[3] if len(sys.argv) > 3 else 'chromium'
    # Each browser's run has its own display, so both can run at once.
    display = ':%d' % (int(os.environ.get('QOR_WEB_DISPLAY', '209')) + (kind == 'firefox'))
    work = tempfile.mkdtemp(prefix='qor-web-')
    driver = None
    try:
        plain = export(program, make_menu(work, 'plain', texts=2), os.path.join(work, 'out plain'))
        # The one file of the CD the assistant's statements name, as text and
        # as a picture: given to the page like the menu's own files.
        picture = os.path.join(work, 'any.bmp')
        bmp(picture, 32, 32, solid(NORMAL))
        with open(picture, 'rb') as f, open(os.path.join(work, 'out plain', 'qor_menu2', 'menu.js'), 'a') as js:
            js.write('window.QOR_MENU.cd = {"mon dossier/fichier 1.txt": "%s"};\n' % base64.b64encode(f.read()).decode())
        # The launcher is written beside the page, as before.
        check('launcher beside the page', os.path.isfile(os.path.join(work, 'out plain', 'index.htm')))

        # qorc build --web: the CD opens in a browser from its root too.
        cd = os.path.join(work, 'cd')
        os.makedirs(cd)
        r = subprocess.run([os.path.join(program, 'qorc'), 'build', make_menu(work, 'on cd'), cd, '--web'],
                           capture_output=True, text=True)
        check('qorc build --web', r.returncode == 0 and all(
            os.path.isfile(os.path.join(cd, f)) for f in ('Autorun.inf', 'index.htm', 'qor_menu2.htm',
                                                         'qor/autorun.exe', 'qor_menu2/menu.js')), r.stderr)

        linux = linux_window(program, os.path.join(cd, 'qor', 'autorun.exe'), display)

        # The same menu in the browser and in the Linux player, pixel for
        # pixel (the text box aside: the fonts are each system's own).
        driver = start_browser(kind, os.path.join(work, 'profile'))
        open_menu(driver, os.path.join(cd, 'qor_menu2.htm'))
        if linux:
            left, top = window_rect(driver)[:2]
            time.sleep(0.2)
            compare(shot(driver), (int(left), int(top)), lambda x, y: linux[y][x], 'browser as the Linux player',
                    skip=[TEXT_AT])
        driver.set_script_timeout(30)

        # The window: its size in CSS pixels, centred, the background and the
        # buttons where they stand, pixel for pixel (the text box aside: fonts).
        open_menu(driver, plain)
        left, top, w, h = window_rect(driver)
        vw, vh = driver.execute_script('return [innerWidth, innerHeight]')
        check('window size', (w, h) == (WIDTH, HEIGHT), (w, h))
        check('window centred', (left, top) == ((vw - WIDTH) // 2, (vh - HEIGHT) // 2), (left, top, vw, vh))
        origin = (int(left), int(top))

        def looks(button_colour):
            def expected(x, y):
                if inside(x, y, BUTTON):
                    return button_colour
                if inside(x, y, QUIT_AT):
                    return QUIT
                return background(x, y)
            return expected

        time.sleep(0.2)
        compare(shot(driver), origin, looks(NORMAL), 'background and buttons', skip=[TEXT_AT])

        # Hover shows the hover picture; a click runs the button's script.
        hover(driver, '.qor-button')
        time.sleep(0.2)
        compare(shot(driver), origin, looks(HOVER), 'hover picture', skip=[TEXT_AT])
        click(driver, '.qor-button')
        text = wait(driver, "var b = document.querySelector('.qor-box-text'); return b && b.textContent", 'box opens')
        check('click shows the MsgBox text', text == 'Bonjour le monde', text)
        answer_box(driver)

        # The timer's script changes the caption.
        wait(driver, "return document.title === 'Tic'", 'timer changes the caption')

        # A quit button closes the menu.
        click(driver, '.qor-button', 1)
        wait(driver, "return document.body.getAttribute('data-qor') === 'closed'", 'quit closes')

        cuts(driver, program, work, looks)
        moves_and_states(driver, program, work)
        media(driver, program, work)
        hostile(driver, program, work)

        # The boxes' answers reach the script: the first button is taken (in
        # a menu whose timer leaves the caption alone).
        open_menu(driver, os.path.join(work, 'out still', 'qor_menu2.htm'))
        for statement, caption in (
                ('Fenetre.Caption = InputBox("Votre nom ?", "Titre", "Marie")', 'Marie'),
                ('Fenetre.Caption = CStr(MsgBox("Continuer ?", vbYesNo + vbQuestion))', '6'),
                ('Fenetre.Caption = CStr(MsgBox("Encore ?", vbAbortRetryIgnore))', '3')):
            error = driver.execute_async_script(RUN_STATEMENT, statement)
            title = driver.execute_script('return document.title')
            check('box answer reaches the script', error == '' and title == caption, (statement, error, title))

        # Deep recursion ends with the engine's own message before the browser's
        # stack runs out, a box can wait deep in it, and the page plays on.
        for statement, error, caption in DEEP_SCRIPTS:
            ran = driver.execute_async_script(RUN_STATEMENT, statement)
            title = driver.execute_script('return document.title')
            check('deep script', error in ran and (not error) == (ran == '') and title == caption,
                  (statement[:40], ran, title))

        # A browser without promise integration for WebAssembly answers with
        # its own boxes, and the answer still reaches the script.
        if kind == 'chromium':
            without_suspending(driver, os.path.join(work, 'out still', 'qor_menu2.htm'))

        # Every statement of the script assistant runs without error.
        open_menu(driver, plain)
        out = subprocess.run([statements_program], capture_output=True, text=True)
        check('assistant statements listed', out.returncode == 0, out.stderr)
        blocks = [b.strip('\n') for b in out.stdout.split('\n\f\n') if b.strip()]
        check('97 statements', len(blocks) == 97, len(blocks))
        for block in blocks:
            error = driver.execute_async_script(RUN_STATEMENT, block)
            check('statement runs', error == '', '%r -> %r' % (block, error))
    finally:
        if driver:
            driver.quit()
        shutil.rmtree(work, ignore_errors=True)
    if FAILURES:
        print('%d check(s) failed' % len(FAILURES))
        return 1
    print('all checks passed (%s)' % kind)
    return 0


if __name__ == '__main__':
    sys.exit(main())
