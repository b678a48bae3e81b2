#!/usr/bin/env python3
"""The browser player's targets, in headless Chromium beside their yardsticks.

    web_bench.py BUILD_FOLDER [size] [frame] [firefox] [loops]     (all four without a word)

- first frame: a 99-button, 50-text menu exported by qorc html and opened
  from its folder, against a page showing the same background picture alone;
  both in the same browser, side by side, best of eleven each; "firefox"
  measures the same in headless Firefox ESR.
- loops: the engine's benchmark loops (bench/script_loops.h) in the browser,
  built like the player, against the native build of the same loops.
- size: the player script, whole and gzip-compressed, beside compil.exe.
"""
import gzip
import os
import shutil
import subprocess
import sys
import tempfile

here = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(here, '..', '..', 'tests', 'player', 'web'))
import web_player_test as menus  # noqa: E402  (the test's menu writer and browser start)


RUNS = 11


def first_frame(driver, url, flag):
    driver.get('about:blank')
    driver.get(url)
    return menus.wait(driver, 'return window.%s' % flag, 'first frame of ' + url, 60)


def main():
    build = os.path.abspath(sys.argv[1])
    wanted = set(sys.argv[2:]) or {'size', 'frame', 'firefox', 'loops'}
    program = os.path.join(build, 'program')
    work = tempfile.mkdtemp(prefix='qor-web-bench-')
    driver = None
    try:
        player = os.path.join(program, 'web', 'qor_player.js')
        if 'size' in wanted:
            raw = open(player, 'rb').read()
            compil = os.path.getsize(os.path.join(program, 'compil.exe'))
            print('size: qor_player.js %d bytes, gzip -9 %d bytes; front.js %d bytes; compil.exe %d bytes' % (
                len(raw), len(gzip.compress(raw, 9)), os.path.getsize(os.path.join(program, 'web', 'front.js')), compil))
        driver = menus.start_browser('chromium', os.path.join(work, 'profile'))
        if 'frame' in wanted:
            frame(driver, program, os.path.join(work, 'chromium'), 'Chromium')
        if 'firefox' in wanted:
            firefox = menus.start_browser('firefox', os.path.join(work, 'firefox profile'))
            try:
                frame(firefox, program, os.path.join(work, 'firefox'), 'Firefox ESR')
            finally:
                firefox.quit()
        if 'loops' in wanted:
            loops(driver, build, work)
    finally:
        if driver:
            driver.quit()
        shutil.rmtree(work, ignore_errors=True)
    return 1 if menus.FAILURES else 0


def frame(driver, program, work, browser):
    os.makedirs(work)
    project = menus.make_menu(work, 'big', texts=50, extra_buttons=97)
    page = menus.export(program, project, os.path.join(work, 'out'))
    alone = os.path.join(work, 'out', 'alone.htm')
    with open(alone, 'w') as f:
        f.write('<!DOCTYPE html><html><body style="margin:0">'
                '<img src="qor_menu2/fond.bmp" onload="requestAnimationFrame(function () {'
                ' window.shownAt = performance.now(); })"></body></html>')
    # Side by side: one of each in turn, so a busy moment of the machine
    # slows both; the best of each, and the ratios of the pairs to show how
    # steady it is.
    # One pair first, not counted: a browser just started reads and
    # compiles everything for the first time.
    first_frame(driver, 'file://' + page, 'qorSceneShown')
    first_frame(driver, 'file://' + alone, 'shownAt')
    menu_ms, alone_ms, scene_ms, pairs = [], [], [], []
    for _ in range(RUNS):
        m = first_frame(driver, 'file://' + page, 'qorFirstFrame')
        # The page's window comes first; the player's own scene (text boxes too) follows.
        scene_ms.append(menus.wait(driver, 'return window.qorSceneShown', 'scene shown', 60))
        a = first_frame(driver, 'file://' + alone, 'shownAt')
        menu_ms.append(m)
        alone_ms.append(a)
        pairs.append(m / a)
    pairs.sort()
    print('first frame in %s (best of %d): menu %.1f ms, background alone %.1f ms, ratio %.2f; ratio of the pairs: '
          "median %.2f, worst %.2f; the player's whole scene %.1f ms" % (
              browser, RUNS, min(menu_ms), min(alone_ms), min(menu_ms) / min(alone_ms), pairs[len(pairs) // 2], pairs[-1],
              min(scene_ms)))


def loops(driver, build, work, rounds=3):
    loops_js = os.path.join(build, 'web', 'script_loops.js')
    loops_page = os.path.join(work, 'loops.htm')
    with open(loops_page, 'w') as f:
        f.write('<!DOCTYPE html><html><body><script>window.lines = [];'
                'var Module = { arguments: ["3"], print: function (l) { window.lines.push(l); },'
                ' };</script>'
                '<script src="file://%s"></script></body></html>' % loops_js)
    # The loops run as the page loads: the load ends when they do. Browser
    # and native take turns, so a busy moment of the machine falls on both;
    # the best of each is kept.
    driver.set_page_load_timeout(900)
    web, native = {}, {}

    def best(into, lines):
        for name, ms in (l.split() for l in lines if len(l.split()) == 2):
            into[name] = min(float(ms), into.get(name, float('inf')))
    for _ in range(rounds):
        driver.get('about:blank')
        driver.get('file://' + loops_page)
        menus.wait(driver, 'return window.lines.length >= 8', 'browser loops', 120)
        best(web, driver.execute_script('return window.lines'))
        best(native, subprocess.run([os.path.join(build, 'bench', 'script_loops'), '3'], capture_output=True,
                                    text=True).stdout.split('\n'))
    if len(web) < 8:
        print('browser loops printed: %r' % sorted(web))
        return
    for name in sorted(web, key=lambda n: (n.startswith('Top'), n)):
        w, n = web[name], native[name]
        print('loop %-8s browser %8.1f ms, native %8.1f ms, ratio %.2f' % (name, w, n, w / n))


if __name__ == '__main__':
    sys.exit(main())
