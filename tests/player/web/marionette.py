"""Headless Firefox driven through its own remote protocol (Marionette):
Debian ships no geckodriver, and the protocol is small. Messages are
"LENGTH:JSON"; a command is [0, id, name, parameters], its answer
[1, id, error, result].

    browser = Firefox.start(profile_folder)     # raises BrowserError with the reason
    browser.get('file:///...'); browser.execute_script('return 1'); browser.quit()
"""
import base64
import json
import os
import shutil
import socket
import subprocess
import time


class BrowserError(Exception):
    pass


def free_port():
    with socket.socket() as s:
        s.bind(('127.0.0.1', 0))
        return s.getsockname()[1]


class Firefox:
    def __init__(self, process, sock):
        self.process, self.sock = process, sock
        self.buffer = b''
        self.next_id = 0

    @classmethod
    def start(cls, profile, width=640, height=480):
        binary = shutil.which('firefox-esr') or shutil.which('firefox')
        if not binary:
            raise BrowserError('firefox-esr is not installed (tools/install-deps.sh installs it)')
        os.makedirs(profile, exist_ok=True)
        port = free_port()
        prefs = {
            'marionette.port': port,
            'browser.shell.checkDefaultBrowser': False,
            'browser.startup.homepage_override.mstone': 'ignore',
            'datareporting.policy.dataSubmissionEnabled': False,
            'toolkit.telemetry.reportingpolicy.firstRun': False,
            'app.update.disabledForTesting': True,
            'network.connectivity-service.enabled': False,
            'layout.css.devPixelsPerPx': '1.0',
            # Pop-ups opened by a click are the visitor's: never blocked.
            'dom.disable_open_during_load': False,
        }
        with open(os.path.join(profile, 'user.js'), 'w') as f:
            for k, v in prefs.items():
                f.write('user_pref(%s, %s);\n' % (json.dumps(k), json.dumps(v)))
        log = open(os.path.join(profile, 'firefox.log'), 'w')
        process = subprocess.Popen([binary, '--headless', '--marionette', '--no-remote', '--profile', profile,
                                    '--width=%d' % width, '--height=%d' % height, 'about:blank'],
                                   stdout=log, stderr=subprocess.STDOUT)
        sock = None
        end = time.time() + 60
        while time.time() < end and process.poll() is None:
            try:
                sock = socket.create_connection(('127.0.0.1', port), timeout=2)
                break
            except OSError:
                time.sleep(0.2)
        if sock is None:
            process.kill()
            with open(os.path.join(profile, 'firefox.log')) as f:
                tail = f.read()[-800:]
            raise BrowserError('Firefox did not open its remote port %d (exit %s): %s' % (port, process.poll(), tail))
        # A browser that stops answering fails the check rather than hang it.
        sock.settimeout(120)
        browser = cls(process, sock)
        hello = browser._receive()
        if not isinstance(hello, dict) or hello.get('marionetteProtocol', 0) < 3:
            browser.quit()
            raise BrowserError('unexpected greeting %r' % (hello,))
        browser.command('WebDriver:NewSession', {'capabilities': {'alwaysMatch': {'acceptInsecureCerts': True}}})
        browser.command('WebDriver:SetTimeouts', {'script': 30000, 'pageLoad': 60000})
        return browser

    def _receive(self):
        while b':' not in self.buffer:
            self._fill()
        length, rest = self.buffer.split(b':', 1)
        length = int(length)
        self.buffer = rest
        while len(self.buffer) < length:
            self._fill()
        body, self.buffer = self.buffer[:length], self.buffer[length:]
        return json.loads(body.decode('utf-8'))

    def _fill(self):
        chunk = self.sock.recv(1 << 20)
        if not chunk:
            raise BrowserError('Firefox closed its remote connection')
        self.buffer += chunk

    def command(self, name, parameters=None):
        self.next_id += 1
        body = json.dumps([0, self.next_id, name, parameters or {}]).encode('utf-8')
        self.sock.sendall(b'%d:%s' % (len(body), body))
        while True:
            answer = self._receive()
            if isinstance(answer, list) and answer[0] == 1 and answer[1] == self.next_id:
                break
        if answer[2]:
            error = answer[2]
            raise BrowserError('%s: %s: %s' % (name, error.get('error'), error.get('message')))
        result = answer[3]
        return result.get('value') if isinstance(result, dict) and 'value' in result else result

    # ---- the calls the checks make, named as selenium names them ----------

    def get(self, url):
        self.command('WebDriver:Navigate', {'url': url})

    def execute_script(self, script, *args):
        return self.command('WebDriver:ExecuteScript', {'script': script, 'args': list(args)})

    def execute_async_script(self, script, *args):
        return self.command('WebDriver:ExecuteAsyncScript', {'script': script, 'args': list(args)})

    def set_script_timeout(self, seconds):
        self.command('WebDriver:SetTimeouts', {'script': int(seconds * 1000)})

    def get_screenshot_as_png(self):
        # The viewport only, as Chromium's screenshot.
        return base64.b64decode(self.command('WebDriver:TakeScreenshot', {'full': False, 'hash': False}))

    def perform(self, actions):
        """W3C input actions, as the WebDriver standard writes them."""
        self.command('WebDriver:PerformActions', {'actions': actions})
        self.command('WebDriver:ReleaseActions')

    def quit(self):
        try:
            self.command('Marionette:Quit', {'flags': ['eForceQuit']})
        except (BrowserError, OSError):
            pass
        try:
            self.sock.close()
        except OSError:
            pass
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
