#!/usr/bin/env python3
"""The web menu in a real browser: menus exported by `qorc html`, opened from
their folder (file://) in headless Chromium driven by chromedriver.

    web_player_test.py PROGRAM_FOLDER STATEMENTS_PROGRAM

PROGRAM_FOLDER is the staged program folder (qorc, qorbake, qorplayer, web/);
the Linux player's screenshot is taken on X display :209 (Xvfb).
STATEMENTS_PROGRAM prints every statement of the script assistant.
A browser that cannot start fails the check, with the reason.
"""
import base64
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
                 transparency=''):
    lines = ['FICHIER .QOR - COMPATIBLE QOR V2.0 ET +', 'Pour télécharger QOR', 'Merci.',
             '[Format]', 'Editeur=QOR', 'Version=2.0.450', 'Fichier=1.1',
             '[Auteur]', 'Essai', 'essai@example.org', '', 'Menu web',
             '[Général]', 'fond.bmp', ' %d ' % (WIDTH * 15), ' %d ' % (HEIGHT * 15), ' 0 ',
             '(Icône par défaut)', "'para3", '',
             '[ParamsPlus]', '', ' 16777215 ', ' 1 ', ' 1 ', '200', multi(timer_script), '', ' 1 ', '', '',
             '[Autre]', transparency, multi(window_hover)] + ["'para%d" % n for n in range(3, 16)]
    if buttons:
        lines += ['[Bouton]', ' %d ' % (BUTTON[0] * 15), ' %d ' % (BUTTON[1] * 15),
                  'b_n.bmp', 'b_s.bmp', 'b_c.bmp', 'code', multi(click), multi(hover_script), ' 0 ', ' 0 ', "'para4",
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
    # The transparency picture: white, so cut, on the window's right half.
    bmp(os.path.join(folder, 'masque.bmp'), WIDTH, HEIGHT, lambda x, y: (255, 255, 255) if x >= WIDTH // 2 else (0, 0, 0))
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


# ---- the browser ---------------------------------------------------------------

def start_browser(profile):
    try:
        from selenium import webdriver
        from selenium.webdriver.chrome.service import Service
    except ImportError as e:
        print('FAILED: python3-selenium is missing (%s); tools/install-deps.sh installs it' % e)
        sys.exit(1)
    options = webdriver.ChromeOptions()
    options.binary_location = shutil.which('chromium') or '/usr/bin/chromium'
    for a in ('--headless', '--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
              '--disable-component-update', '--disable-sync', '--window-size=640,480', '--hide-scrollbars',
              '--force-device-scale-factor=1', '--allow-file-access-from-files=false',
              '--autoplay-policy=no-user-gesture-required', '--user-data-dir=' + profile):
        options.add_argument(a)
    try:
        return webdriver.Chrome(service=Service(shutil.which('chromedriver') or '/usr/bin/chromedriver'),
                                options=options)
    except Exception as e:  # the reason is the whole message
        print('FAILED: headless Chromium could not start: %s' % e)
        sys.exit(1)


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


def window_origin(driver):
    r = driver.execute_script("var r = document.getElementById('qor-window').getBoundingClientRect();"
                              "return [r.left, r.top, r.width, r.height, innerWidth, innerHeight];")
    return r


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
    from selenium.webdriver.common.by import By

    # Names with accents, blanks and quotes; a missing and an empty picture.
    odd = make_menu(work, 'odd', texts=0, renamed={
        'fond.bmp': ('fond d\'été "n°1".bmp', 'copy'), 'b_n.bmp': ('absent.bmp', None),
        'b_s.bmp': ('vide é.bmp', '')})
    page = export(program, odd, os.path.join(work, 'out odd'))
    open_menu(driver, page)
    left, top = window_origin(driver)[:2]
    rows = shot(driver)
    check('accented, quoted background shown', rows[int(top) + 60][int(left) + 150] == background(150, 60),
          rows[int(top) + 60][int(left) + 150])
    size = driver.execute_script("var r = document.querySelectorAll('.qor-button')[0].getBoundingClientRect();"
                                 "return [r.width, r.height];")
    check('unreadable button is a grey box', size == [75, 25] and
          rows[int(top) + BUTTON[1] + 5][int(left) + BUTTON[0] + 5] == (212, 208, 200), size)

    # Endless scripts in every event: each is stopped with its message.
    endless = 'Do\nLoop'
    menu = make_menu(work, 'endless', timer_script=endless, click=endless, hover_script=endless,
                     window_hover=endless)
    open_menu(driver, export(program, menu, os.path.join(work, 'out endless')))
    for event in ('timer', 'hover', 'click'):
        if event == 'hover':
            from selenium.webdriver.common.action_chains import ActionChains
            ActionChains(driver).move_to_element(driver.find_elements(By.CSS_SELECTOR, '.qor-button')[0]).perform()
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
    import math
    outline = [(int(WIDTH / 2 + WIDTH / 2 * math.cos(k * 2 * math.pi / 100000)),
                int(HEIGHT / 2 + HEIGHT / 2 * math.sin(k * 2 * math.pi / 100000))) for k in range(100000)]
    big = make_menu(work, 'big', texts=10000, shape=outline)
    open_menu(driver, export(program, big, os.path.join(work, 'out big')))
    responsive(driver, '10 000 text boxes')
    wait(driver, "return document.querySelectorAll('.qor-text').length === 10000", 'all text boxes made', 60)
    corner = shot(driver)
    left, top = window_origin(driver)[:2]
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


def main():
    program, statements_program = sys.argv[1], sys.argv[2]
    work = tempfile.mkdtemp(prefix='qor-web-')
    driver = None
    try:
        from selenium.webdriver.common.action_chains import ActionChains
        from selenium.webdriver.common.by import By

        plain = export(program, make_menu(work, 'plain', texts=2), os.path.join(work, 'out plain'))
        # The one file of the CD the assistant's statements name, as text and
        # as a picture: given to the page like the menu's own files.
        picture = os.path.join(work, 'any.bmp')
        bmp(picture, 32, 32, solid(NORMAL))
        with open(picture, 'rb') as f, open(os.path.join(work, 'out plain', 'qor_menu2', 'menu.js'), 'a') as js:
            js.write('window.QOR_MENU.cd = {"mon dossier/fichier 1.txt": "%s"};\n' % base64.b64encode(f.read()).decode())
        # The launcher is written beside the page, as before.
        check('launcher beside the page', os.path.isfile(os.path.join(work, 'out plain', 'index.htm')))
        triangle = [(0, 0), (WIDTH, 0), (0, HEIGHT)]
        cut = export(program, make_menu(work, 'cut', shape=triangle, texts=0), os.path.join(work, 'out cut'))

        # qorc build --web: the CD opens in a browser from its root too.
        cd = os.path.join(work, 'cd')
        os.makedirs(cd)
        r = subprocess.run([os.path.join(program, 'qorc'), 'build', make_menu(work, 'on cd'), cd, '--web'],
                           capture_output=True, text=True)
        check('qorc build --web', r.returncode == 0 and all(
            os.path.isfile(os.path.join(cd, f)) for f in ('Autorun.inf', 'index.htm', 'qor_menu2.htm',
                                                         'qor/autorun.exe', 'qor_menu2/menu.js')), r.stderr)

        linux = linux_window(program, os.path.join(cd, 'qor', 'autorun.exe'))

        # The same menu in the browser and in the Linux player, pixel for
        # pixel (the text box aside: the fonts are each system's own).
        driver = start_browser(os.path.join(work, 'profile'))
        open_menu(driver, os.path.join(cd, 'qor_menu2.htm'))
        if linux:
            left, top = window_origin(driver)[:2]
            time.sleep(0.2)
            compare(shot(driver), (int(left), int(top)), lambda x, y: linux[y][x], 'browser as the Linux player',
                    skip=[TEXT_AT])
        driver.set_script_timeout(30)

        # The window: its size in CSS pixels, centred, the background and the
        # buttons where they stand, pixel for pixel (the text box aside: fonts).
        open_menu(driver, plain)
        left, top, w, h, vw, vh = window_origin(driver)
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
        button = driver.find_elements(By.CSS_SELECTOR, '.qor-button')[0]
        ActionChains(driver).move_to_element(button).perform()
        wait(driver, "return document.querySelectorAll('.qor-button')[0].src !== ''", 'hover')
        time.sleep(0.2)
        compare(shot(driver), origin, looks(HOVER), 'hover picture', skip=[TEXT_AT])
        button.click()
        text = wait(driver, "var b = document.querySelector('.qor-box-text'); return b && b.textContent", 'box opens')
        check('click shows the MsgBox text', text == 'Bonjour le monde', text)
        driver.find_element(By.CSS_SELECTOR, '.qor-box-buttons button').click()
        wait(driver, "return !document.querySelector('.qor-box')", 'box closes')

        # The timer's script changes the caption.
        wait(driver, "return document.title === 'Tic'", 'timer changes the caption')

        # A quit button closes the menu.
        driver.find_elements(By.CSS_SELECTOR, '.qor-button')[1].click()
        wait(driver, "return document.body.getAttribute('data-qor') === 'closed'", 'quit closes')

        # The window's outline: outside the triangle the page shows through.
        open_menu(driver, cut)
        left, top = window_origin(driver)[:2]
        time.sleep(0.2)

        def cut_look(x, y):
            if x + 0.5 + (y + 0.5) * WIDTH / HEIGHT > WIDTH:   # centre beyond the slanted side
                return (255, 255, 255)
            return looks(NORMAL)(x, y)
        compare(shot(driver), (int(left), int(top)), cut_look, 'shape cut')

        hostile(driver, program, work)

        # The boxes' answers reach the script: the first button is taken.
        open_menu(driver, plain)
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
        without_suspending(driver, plain)

        # The transparency picture's white cuts the window; the right
        # button opens the context menu.
        open_menu(driver, export(program, make_menu(work, 'mask', texts=0, transparency='masque.bmp'),
                                 os.path.join(work, 'out mask')))
        left, top = window_origin(driver)[:2]
        time.sleep(0.2)
        compare(shot(driver), (int(left), int(top)),
                lambda x, y: (255, 255, 255) if x >= WIDTH // 2 else looks(NORMAL)(x, y), 'transparency cut')
        ActionChains(driver).context_click(driver.find_element(By.CSS_SELECTOR, '.qor-back-image')).perform()
        entries = wait(driver, "return Array.from(document.querySelectorAll('.qor-context-item'))"
                               ".map(function (e) { return e.textContent; })", 'context menu')
        check('context menu entries', bool(entries), entries)

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
    print('all checks passed')
    return 0


if __name__ == '__main__':
    sys.exit(main())
