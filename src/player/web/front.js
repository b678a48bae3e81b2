// The browser player's page side: draws the scene the player core hands over,
// plays its sounds, shows its boxes and reports the visitor's input back.
// Every decision stays in the core (qor_player.js); this file only shows.
//
// The menu comes in QOR_MENU (menu.js, beside this file): the data file's
// name and the bytes of the files the player reads (the data, pictures),
// base64-coded so the page opens from a folder without fetching anything.
// Sounds and videos are played from their own files in the same folder.
(function () {
  'use strict';

  var menu = window.QOR_MENU || { data: '', files: {}, folder: '' };
  var ROOT = '/cd/';
  var FOLDER = ROOT + 'qor/';
  var page = { files: {}, images: {}, texts: [], buttons: [], scene: null, busy: false, queue: [] };
  var core = null;
  var el = {};

  // ---- files -------------------------------------------------------------

  function key(path) { return path.replace(/\\/g, '/').toLowerCase(); }

  Object.keys(menu.files).forEach(function (name) {
    page.files[key(FOLDER + name)] = { name: name, b64: menu.files[name], bytes: null };
  });
  // Files of the CD beyond the menu's folder that the page was given.
  Object.keys(menu.cd || {}).forEach(function (name) {
    page.files[key(ROOT + name)] = { name: name, b64: menu.cd[name], bytes: null };
  });

  function fileOf(path) {
    var f = page.files[key(path)];
    if (f && !f.bytes) {
      var raw = atob(f.b64);
      f.bytes = new Uint8Array(raw.length);
      for (var i = 0; i < raw.length; ++i) f.bytes[i] = raw.charCodeAt(i);
    }
    return f;
  }

  var MIME = { bmp: 'image/bmp', gif: 'image/gif', jpg: 'image/jpeg', jpeg: 'image/jpeg', png: 'image/png',
               ico: 'image/x-icon', cur: 'image/x-icon', wav: 'audio/wav', mp3: 'audio/mpeg', mid: 'audio/midi' };
  function extension(path) { var m = /\.([^.\/]*)$/.exec(path); return m ? m[1].toLowerCase() : ''; }

  // A path of the menu's CD as the page reaches it: relative to the page,
  // whose folder stands for the CD root; the menu's own folder is menu.folder.
  function urlOf(path) {
    var p = path.replace(/\\/g, '/');
    if (p.toLowerCase().indexOf(FOLDER) === 0) p = menu.folder + '/' + p.substring(FOLDER.length);
    else if (p.indexOf(ROOT) === 0) p = p.substring(ROOT.length);
    else return null;
    return p.split('/').map(encodeURIComponent).join('/');
  }

  // A picture the page holds: a blob address (same origin, so its pixels can
  // be read for the window's cut), loaded once before the menu starts.
  function imageOf(path) {
    if (!path) return null;
    return page.images[key(path)] || null;
  }

  // A picture is known by its first bytes, whatever its name says.
  function pictureType(b) {
    if (b.length < 4) return null;
    if (b[0] === 0x42 && b[1] === 0x4d) return 'image/bmp';
    if (b[0] === 0x47 && b[1] === 0x49 && b[2] === 0x46) return 'image/gif';
    if (b[0] === 0xff && b[1] === 0xd8) return 'image/jpeg';
    if (b[0] === 0x89 && b[1] === 0x50 && b[2] === 0x4e && b[3] === 0x47) return 'image/png';
    if (b[0] === 0 && b[1] === 0 && (b[2] === 1 || b[2] === 2) && b[3] === 0) return 'image/x-icon';
    return null;
  }

  var blobs = {};
  function blobOf(k) {
    if (!(k in blobs)) {
      var f = fileOf(k);
      var type = f && pictureType(f.bytes);
      blobs[k] = type ? URL.createObjectURL(new Blob([f.bytes], { type: type })) : null;
    }
    return blobs[k];
  }

  function loadImages() {
    var waits = [];
    Object.keys(page.files).forEach(function (k) {
      var url = blobOf(k);
      if (!url) return;
      var img = new Image();
      waits.push(new Promise(function (done) {
        img.onload = function () { page.images[k] = { url: url, img: img, w: img.naturalWidth, h: img.naturalHeight }; done(); };
        img.onerror = function () { done(); };
      }));
      img.src = url;
    });
    return Promise.all(waits);
  }

  // ---- colours and pointers ---------------------------------------------------

  var SYSTEM_COLOURS = { 1: '#3a6ea5', 2: '#99b4d1', 3: '#bfcddb', 4: '#f0f0f0', 5: '#ffffff', 6: '#646464',
    7: '#000000', 8: '#000000', 9: '#000000', 10: '#b4b4b4', 11: '#f4f7fc', 12: '#ababab', 13: '#3399ff',
    14: '#ffffff', 15: '#f0f0f0', 16: '#a0a0a0', 17: '#6d6d6d', 18: '#000000', 19: '#000000', 20: '#ffffff',
    21: '#696969', 22: '#e3e3e3', 23: '#000000', 24: '#ffffe1' };
  function css(colour) {
    colour = colour >>> 0;
    if (colour & 0x80000000) return SYSTEM_COLOURS[colour & 0xff] || '#f0f0f0';
    var r = colour & 0xff, g = (colour >> 8) & 0xff, b = (colour >> 16) & 0xff;
    return 'rgb(' + r + ',' + g + ',' + b + ')';
  }
  var POINTERS = { 1: 'default', 2: 'crosshair', 3: 'text', 4: 'default', 5: 'move', 6: 'nesw-resize',
    7: 'ns-resize', 8: 'nwse-resize', 9: 'ew-resize', 10: 'n-resize', 11: 'wait', 12: 'no-drop',
    13: 'progress', 14: 'help', 15: 'move' };
  function pointer(own, isButton, fallback) {
    var w = page.scene.window;
    var choice = w.screenCursor.pointer ? w.screenCursor : own;
    if (choice.pointer === 99) {
      var icon = imageOf(choice.icon);
      return icon ? 'url("' + icon.url + '"), auto' : 'default';
    }
    if (POINTERS[choice.pointer]) return POINTERS[choice.pointer];
    return isButton && w.handOverButtons ? 'pointer' : fallback;
  }

  // ---- calls into the core ---------------------------------------------------

  // The core runs one thing at a time: while a script waits on a box, input
  // waits in line (timer ticks are dropped, the next one comes anyway).
  function send(name, types, args, isTick) {
    if (!core || page.closed) return;
    if (page.busy) {
      if (!isTick) page.queue.push([name, types, args]);
      return;
    }
    page.busy = true;
    var done = function () {
      page.busy = false;
      if (page.pendingNotice) {
        page.pendingNotice = false;
        messageBox({ title: document.title, text: NEEDS_WINDOWS, buttons: 64 });
      }
      var next = page.queue.shift();
      if (next) send(next[0], next[1], next[2]);
    };
    var result;
    try {
      result = core.qorCall(name, null, types, args);
    } catch (e) {
      done();
      throw e;
    }
    result.then(done, done);
  }

  // ---- the window ---------------------------------------------------------------

  // The window is the page's own, painted as the player first shows it:
  // its background stays (already decoded), the buttons are the player's.
  function build() {
    el.window = document.getElementById('qor-window');
    el.cut = el.window.querySelector('.qor-cut');
    el.back = el.window.querySelector('.qor-back');
    el.backImage = el.window.querySelector('.qor-back-image');
    el.border = el.window.querySelector('.qor-border');
    var name = el.backImage.getAttribute('data-name');
    if (name) el.backImage.setAttribute('data-path', key(FOLDER + name));
    el.back.querySelectorAll('.qor-button').forEach(function (n) { n.remove(); });
    el.back.addEventListener('mousemove', function (e) {
      if (e.target === el.back || e.target === el.backImage || e.target === el.border) send('qor_background_over', [], []);
    });
    el.back.addEventListener('mouseleave', function () { send('qor_background_leave', [], []); });
    el.window.addEventListener('contextmenu', contextMenu);
    el.back.addEventListener('mousedown', startDrag);
  }

  // The window stands where the core puts it (centred on the page at the
  // start, then where the visitor drags it or a script moves it); maximised
  // it fills the page; minimised it leaves a bar at the bottom of the page,
  // as a task bar would, that brings it back.
  function layout() {
    var w = page.scene.window;
    var full = w.fullScreen || w.windowState === 2;
    var width = full ? window.innerWidth : w.width;
    var height = full ? window.innerHeight : w.height;
    var s = el.window.style;
    s.width = width + 'px';
    s.height = height + 'px';
    s.left = (full ? 0 : w.left) + 'px';
    s.top = (full ? 0 : w.top) + 'px';
    s.display = w.visible && w.windowState !== 1 ? 'block' : 'none';
    var minimised = w.visible && w.windowState === 1 && !page.closed;
    if (minimised && !el.restore) {
      el.restore = document.createElement('button');
      el.restore.className = 'qor-restore';
      el.restore.onclick = function () {
        page.scene.window.windowState = 0;
        layout();
        send('qor_window_state', ['number'], [0]);
      };
      document.body.appendChild(el.restore);
    }
    if (el.restore) {
      el.restore.style.display = minimised ? 'block' : 'none';
      el.restore.textContent = w.caption || ' ';
    }
  }

  // A window without title bar moves when its background is dragged; the
  // core learns where it was dropped, so scripts read Left and Top.
  function startDrag(e) {
    var w = page.scene && page.scene.window;
    if (e.button !== 0 || !w || w.fullScreen || w.windowState === 2) return;
    if (e.target !== el.back && e.target !== el.backImage && e.target !== el.border) return;
    e.preventDefault();
    var from = { x: e.clientX - w.left, y: e.clientY - w.top, left: w.left, top: w.top };
    var move = function (m) {
      w = page.scene.window;
      w.left = m.clientX - from.x;
      w.top = m.clientY - from.y;
      el.window.style.left = w.left + 'px';
      el.window.style.top = w.top + 'px';
    };
    var drop = function (u) {
      if (u.button !== 0) return;
      document.removeEventListener('mousemove', move, true);
      document.removeEventListener('mouseup', drop, true);
      w = page.scene.window;
      if (w.left === from.left && w.top === from.top) return;
      page.dragged = true;
      send('qor_window_moved', ['number', 'number'], [w.left, w.top]);
    };
    document.addEventListener('mousemove', move, true);
    document.addEventListener('mouseup', drop, true);
  }

  // The polygon and the transparency picture's white (or see-through)
  // pixels are cut out, what is left is what both keep; a window cut away
  // entirely keeps its rectangle so it can still be seen and closed.
  function applyCut() {
    var w = page.scene.window;
    var runs = [];
    for (var i = 0; i + 2 < w.shape.length; i += 3)
      runs.push('M' + w.shape[i] + ' ' + w.shape[i + 1] + 'h' + w.shape[i + 2] + 'v1h' + -w.shape[i + 2] + 'z');
    var image = imageOf(w.transparencyImage);
    var mask = image ? imageCut(image, w.width, w.height) : null;
    var nothingLeft = (w.outline && !runs.length) || (mask && !mask.runs.length) ||
                      (runs.length && mask && !overlaps(w.shape, mask.kept, w.width));
    el.window.style.clipPath = runs.length && !nothingLeft ? "path('" + runs.join('') + "')" : 'none';
    el.cut.style.clipPath = mask && !nothingLeft ? "path('" + mask.runs.join('') + "')" : 'none';
  }

  // Whether a run of the outline meets a pixel the picture keeps.
  function overlaps(shape, kept, width) {
    for (var i = 0; i + 2 < shape.length; i += 3) {
      var row = shape[i + 1] * width;
      for (var x = Math.max(0, shape[i]), end = Math.min(width, shape[i] + shape[i + 2]); x < end; ++x)
        if (kept[row + x]) return true;
    }
    return false;
  }

  // The rows of pixels the picture keeps, as path runs, and a map of them;
  // null when its pixels cannot be read (no cut then).
  function imageCut(image, width, height) {
    var canvas = document.createElement('canvas');
    canvas.width = width;
    canvas.height = height;
    var g = canvas.getContext('2d');
    g.imageSmoothingEnabled = false;
    g.drawImage(image.img, 0, 0, width, height);
    var data;
    try { data = g.getImageData(0, 0, width, height).data; } catch (e) { return null; }
    var path = [];
    var kept = new Uint8Array(width * height);
    for (var y = 0; y < height; ++y) {
      for (var x = 0; x < width;) {
        var o = (y * width + x) * 4;
        var cut = data[o + 3] < 128 || (data[o] === 255 && data[o + 1] === 255 && data[o + 2] === 255);
        if (cut) { ++x; continue; }
        var from = x;
        while (x < width) {
          o = (y * width + x) * 4;
          if (data[o + 3] < 128 || (data[o] === 255 && data[o + 1] === 255 && data[o + 2] === 255)) break;
          kept[y * width + x] = 1;
          ++x;
        }
        path.push('M' + from + ' ' + y + 'h' + (x - from) + 'v1h' + (from - x) + 'z');
      }
    }
    return { runs: path, kept: kept };
  }

  function drawWindow(w) {
    var old = page.scene.window;
    page.scene.window = w;
    document.title = w.caption;
    layout();
    el.back.style.backgroundColor = css(w.backColor);
    var image = imageOf(w.backgroundImage);
    el.backImage.style.display = image ? 'block' : 'none';
    if (image) {
      if (el.backImage.getAttribute('data-path') !== key(w.backgroundImage)) {
        el.backImage.src = image.url;
        el.backImage.setAttribute('data-path', key(w.backgroundImage));
      }
      el.backImage.style.width = w.stretch ? '100%' : image.w + 'px';
      el.backImage.style.height = w.stretch ? '100%' : image.h + 'px';
    }
    var b = el.border.style;
    b.display = w.borderVisible && w.borderWidth > 0 ? 'block' : 'none';
    b.borderWidth = w.borderWidth + 'px';
    b.borderColor = css(w.borderColor);
    b.borderRadius = w.borderShape === 2 ? '50%' : w.borderShape === 4 ? Math.min(w.width, w.height) / 6 + 'px' : '0';
    if (!old || old.transparencyImage !== w.transparencyImage || old.outline !== w.outline || String(old.shape) !== String(w.shape) ||
        old.width !== w.width || old.height !== w.height)
      applyCut();
    el.back.style.cursor = pointer(w.cursor, false, 'default');
    page.buttons.forEach(function (node, i) { node.style.cursor = pointer(page.scene.buttons[i].cursor, true, 'default'); });
  }

  // ---- buttons ------------------------------------------------------------------

  function makeButton(i) {
    var node = document.createElement('img');
    node.className = 'qor-button';
    node.alt = '';
    node.draggable = false;
    node.addEventListener('mouseenter', function () { send('qor_enter', ['number'], [i]); });
    node.addEventListener('mouseleave', function () { send('qor_leave', ['number'], [i]); });
    node.addEventListener('mousedown', function (e) {
      if (e.button !== 0) return;
      e.preventDefault();
      page.pressed = i;
      send('qor_press', ['number'], [i]);
    });
    el.back.appendChild(node);
    return node;
  }

  document.addEventListener('mouseup', function (e) {
    if (e.button !== 0 || page.pressed === undefined) return;
    var i = page.pressed;
    page.pressed = undefined;
    send('qor_release', ['number', 'number'], [i, e.target === page.buttons[i] ? 1 : 0]);
  });

  function drawButton(i, b) {
    page.scene.buttons[i] = b;
    var node = page.buttons[i];
    // A button whose pictures cannot be read is a plain grey box the size
    // of its normal picture (or 75 by 25), so it can still be clicked.
    var normal = imageOf(b.normal);
    var image = imageOf(b.shown) || normal;
    node.style.left = b.x + 'px';
    node.style.top = b.y + 'px';
    node.style.display = b.visible ? 'block' : 'none';
    node.style.width = (normal ? normal.w : 75) + 'px';
    node.style.height = (normal ? normal.h : 25) + 'px';
    node.style.backgroundColor = image ? '' : 'rgb(212,208,200)';
    if (image && node.src !== image.url) node.src = image.url;
    else if (!image && node.getAttribute('src')) node.removeAttribute('src');
    node.style.cursor = pointer(b.cursor, true, 'default');
  }

  // ---- text boxes ---------------------------------------------------------------

  function makeText(i) {
    var node = document.createElement('textarea');
    node.className = 'qor-text';
    node.spellcheck = false;
    node.addEventListener('input', function () { send('qor_text_edited', ['number', 'string'], [i, node.value]); });
    node.addEventListener('mouseenter', function () { send('qor_background_leave', [], []); });
    el.back.appendChild(node);
    return node;
  }

  function drawText(i, t) {
    page.scene.texts[i] = t;
    var node = page.texts[i];
    if (!node) return;
    var s = node.style;
    s.left = t.x + 'px';
    s.top = t.y + 'px';
    s.width = t.width + 'px';
    s.height = t.height + 'px';
    s.display = t.visible ? 'block' : 'none';
    s.fontFamily = '"' + (t.fontName || 'MS Sans Serif').replace(/"/g, '') + '", sans-serif';
    s.fontSize = t.fontSize + 'pt';
    s.fontWeight = t.bold ? 'bold' : 'normal';
    s.fontStyle = t.italic ? 'italic' : 'normal';
    s.textDecoration = [t.underline ? 'underline' : '', t.strike ? 'line-through' : ''].join(' ').trim() || 'none';
    s.color = css(t.foreColor);
    s.backgroundColor = css(t.backColor);
    s.textAlign = t.alignment === 1 ? 'right' : t.alignment === 2 ? 'center' : 'left';
    s.overflowY = t.scrollBar ? 'scroll' : 'hidden';
    s.cursor = pointer(t.cursor, false, t.locked ? 'default' : 'text');
    node.readOnly = t.locked;
    var text = t.text.replace(/\r\n/g, '\n');
    if (node.value !== text) node.value = text;
  }

  // Thousands of text boxes: the window comes at once, the boxes batch by
  // batch between frames, so the page answers meanwhile.
  function makeTexts(from) {
    var end = Math.min(page.scene.texts.length, from + 100);
    for (var i = from; i < end; ++i) {
      page.texts[i] = makeText(i);
      drawText(i, page.scene.texts[i]);
    }
    if (end < page.scene.texts.length) requestAnimationFrame(function () { makeTexts(end); });
  }

  // ---- timer --------------------------------------------------------------------

  function setTimer(t) {
    if (page.timer) clearInterval(page.timer);
    page.timer = null;
    if (t.runs && !page.closed) page.timer = setInterval(function () { send('qor_timer', [], [], true); }, t.interval);
  }

  // ---- media --------------------------------------------------------------------

  // Browsers play sound only once the visitor has clicked or typed: the
  // music waits for that.
  function startMusic() {
    if (!page.music || !page.music.paused) return;
    var p = page.music.play();
    if (p && p.catch) p.catch(function () {});
  }
  ['click', 'keydown', 'mousedown'].forEach(function (type) { document.addEventListener(type, startMusic, true); });

  function mediaUrl(path) {
    var f = page.files[key(path)];
    if (f) return URL.createObjectURL(new Blob([fileOf(path).bytes], { type: MIME[extension(path)] || '' }));
    return urlOf(path);
  }

  function playable(path, tag) {
    var probe = document.createElement(tag);
    var types = { mp4: 'video/mp4', webm: 'video/webm', ogv: 'video/ogg', ogg: 'audio/ogg', mp3: 'audio/mpeg',
                  wav: 'audio/wav', m4v: 'video/mp4', mov: 'video/quicktime' };
    var type = types[extension(path)];
    return !!type && probe.canPlayType(type) !== '';
  }

  function openInTab(url) {
    if (!url) return false;
    var w = window.open(url, '_blank', 'noopener');
    return w !== undefined;
  }

  function showVideo(path) {
    if (!playable(path, 'video')) return openInTab(urlOf(path));
    var shade = document.createElement('div');
    shade.className = 'qor-shade';
    var video = document.createElement('video');
    video.className = 'qor-video';
    video.controls = true;
    video.src = mediaUrl(path);
    // Started now, while the visitor's click counts: a browser lets a film
    // with sound start by itself only then.
    var p = video.play();
    if (p && p.catch) p.catch(function () {});
    var close = document.createElement('button');
    close.textContent = 'Fermer';
    close.onclick = function () { video.pause(); shade.remove(); };
    video.onended = close.onclick;
    // A file of a kind the browser plays whose content it cannot (another
    // codec inside, a damaged file) opens in a new tab instead, as a kind it
    // does not know would; the visitor's click still counts for the tab.
    video.onerror = function () {
      if (!video.error || video.error.code !== video.error.MEDIA_ERR_SRC_NOT_SUPPORTED) return;
      close.onclick();
      openInTab(urlOf(path));
    };
    shade.appendChild(video);
    shade.appendChild(close);
    document.body.appendChild(shade);
    return true;
  }

  // ---- boxes --------------------------------------------------------------------

  var BUTTON_SETS = [
    [['OK', 1]], [['OK', 1], ['Annuler', 2]], [['Abandonner', 3], ['Réessayer', 4], ['Ignorer', 5]],
    [['Oui', 6], ['Non', 7], ['Annuler', 2]], [['Oui', 6], ['Non', 7]], [['Réessayer', 4], ['Annuler', 2]]];
  var ICONS = { 16: '\u26d4', 32: '?', 48: '\u26a0', 64: '\u2139' };

  // A modal box in the page: its answer is the button chosen and, for an
  // input box, the text as it stood then.
  function box(title, text, buttons, field, defaultButton) {
    return new Promise(function (answer) {
      var shade = document.createElement('div');
      shade.className = 'qor-shade';
      var dialog = document.createElement('div');
      dialog.className = 'qor-box';
      dialog.setAttribute('role', 'dialog');
      dialog.setAttribute('aria-modal', 'true');
      var head = document.createElement('div');
      head.className = 'qor-box-title';
      head.textContent = title;
      var body = document.createElement('div');
      body.className = 'qor-box-text';
      body.textContent = text.replace(/\r\n/g, '\n');
      dialog.appendChild(head);
      dialog.appendChild(body);
      var input = null;
      if (field !== undefined) {
        input = document.createElement('input');
        input.className = 'qor-box-input';
        input.value = field;
        dialog.appendChild(input);
      }
      var row = document.createElement('div');
      row.className = 'qor-box-buttons';
      var finish = function (value) {
        document.removeEventListener('keydown', keys, true);
        shade.remove();
        answer({ button: value, text: input ? input.value : null });
      };
      var nodes = buttons.map(function (b) {
        var n = document.createElement('button');
        n.textContent = b[0];
        n.onclick = function () { finish(b[1]); };
        row.appendChild(n);
        return n;
      });
      // Escape is the box's cancel answer; Enter in the input box is OK.
      var keys = function (e) {
        if (e.key === 'Escape') { e.preventDefault(); finish(buttons[buttons.length - 1][1]); }
        else if (e.key === 'Enter' && input) { e.preventDefault(); finish(buttons[0][1]); }
      };
      document.addEventListener('keydown', keys, true);
      dialog.appendChild(row);
      shade.appendChild(dialog);
      document.body.appendChild(shade);
      (input || nodes[defaultButton < nodes.length ? defaultButton : 0]).focus();
    });
  }

  function messageBox(r) {
    var set = r.buttons & 7;
    var buttons = BUTTON_SETS[set < 6 ? set : 0];
    var icon = ICONS[r.buttons & 0x70];
    return box(r.title, (icon ? icon + '  ' : '') + r.text, buttons, undefined, (r.buttons >> 8) & 3)
      .then(function (a) { return a.button; });
  }

  function inputBox(r) {
    return box(r.title === undefined ? document.title : r.title, r.prompt, [['OK', 1], ['Annuler', 2]], r.defaultText, 0)
      .then(function (a) { return a.button === 1 ? a.text : null; });
  }

  // A browser that cannot suspend the player for a box of the page: its own
  // boxes, modal, with the nearest answers (OK is Yes, Retry, OK).
  var NOW_ANSWERS = { 0: [1, 1], 1: [1, 2], 2: [4, 3], 3: [6, 2], 4: [6, 7], 5: [4, 2] };
  function messageBoxNow(r) {
    var set = r.buttons & 7;
    var answers = NOW_ANSWERS[set < 6 ? set : 0];
    var text = (r.title ? r.title + '\n\n' : '') + r.text;
    if (set === 0 || set > 5) {
      window.alert(text);
      return answers[0];
    }
    return window.confirm(text) ? answers[0] : answers[1];
  }

  function inputBoxNow(r) {
    return window.prompt(r.prompt, r.defaultText || '');
  }

  // What the browser cannot do for a menu: it is told once, in French.
  var NEEDS_WINDOWS = 'Cette action a besoin du CD sous Windows :\nouvrez le menu depuis le CD sur un ordinateur Windows.';

  // ---- context menu -----------------------------------------------------------------

  function contextMenu(e) {
    e.preventDefault();
    if (!core || page.busy) return;
    var entries = core.UTF8ToString(core._qor_context_entries()).split('\n').filter(function (s) { return s; });
    if (!entries.length) return;
    var list = document.createElement('div');
    list.className = 'qor-context';
    list.style.left = e.clientX + 'px';
    list.style.top = e.clientY + 'px';
    var gone = function () { list.remove(); document.removeEventListener('mousedown', away, true); };
    var away = function (ev) { if (!list.contains(ev.target)) gone(); };
    entries.forEach(function (text, i) {
      var item = document.createElement('div');
      item.className = 'qor-context-item';
      item.textContent = text;
      item.onclick = function () { gone(); send('qor_choose_context', ['number'], [i]); };
      list.appendChild(item);
    });
    document.body.appendChild(list);
    document.addEventListener('mousedown', away, true);
  }

  // ---- what the core calls -------------------------------------------------------

  var calls = {
    screenWidth: function () { return window.innerWidth || 800; },
    screenHeight: function () { return window.innerHeight || 600; },
    imageWidth: function (path) { var i = imageOf(path); return i ? i.w : 0; },
    imageHeight: function (path) { var i = imageOf(path); return i ? i.h : 0; },
    show: function (scene) {
      page.scene = { window: null, buttons: scene.buttons, texts: scene.texts };
      build();
      page.buttons = scene.buttons.map(function (b, i) { return makeButton(i); });
      page.texts = [];
      drawWindow(scene.window);
      scene.buttons.forEach(function (b, i) { drawButton(i, b); });
      makeTexts(0);
      setTimer(scene.timer);
      document.body.setAttribute('data-qor', 'shown');
      requestAnimationFrame(function () { window.qorSceneShown = performance.now(); });
    },
    window: drawWindow,
    button: function (c) { drawButton(c.index, c.button); },
    text: function (c) { drawText(c.index, c.text); },
    timer: setTimer,
    close: function () {
      page.closed = true;
      setTimer({ runs: false });
      if (page.music) page.music.pause();
      if (el.window) el.window.style.display = 'none';
      document.body.setAttribute('data-qor', 'closed');
      window.close();
    },
    music: function (path) {
      if (page.music) { page.music.pause(); page.music.remove(); }
      page.music = new Audio(mediaUrl(path));
      page.music.className = 'qor-music';
      page.music.loop = true;
      document.body.appendChild(page.music);
      startMusic();
    },
    sound: function (path) {
      var a = new Audio(mediaUrl(path));
      var p = a.play();
      if (p && p.catch) p.catch(function () {});
    },
    video: function (path) {
      if (playable(path, 'audio') && !playable(path, 'video')) calls.sound(path);
      else showVideo(path);
    },
    stopMedia: function () {
      if (page.music) page.music.pause();
      document.querySelectorAll('video').forEach(function (v) { v.pause(); });
    },
    open: function (target) {
      if (/^(https?|ftp|mailto):/i.test(target)) return openInTab(target) ? 1 : 0;
      if (/^www\./i.test(target)) return openInTab('http://' + target) ? 1 : 0;
      var ext = extension(target);
      if (/^(mp4|webm|ogv|m4v|mov|avi|mpg|mpeg|wmv)$/.test(ext)) return showVideo(target) ? 1 : 0;
      return openInTab(urlOf(target)) ? 1 : 0;
    },
    // A sub-menu "X.exe" is the web page "X.htm" beside this one.
    openMenu: function (file) {
      var name = file.replace(/\\/g, '/').split('/').pop().replace(/\.[^.]*$/, '');
      return openInTab(encodeURIComponent(name) + '.htm') ? 1 : 0;
    },
    // The page reads only the files it was given; the others of the CD (the
    // sounds, videos and documents) are taken to be there, since a page
    // opened from a folder cannot look: the browser says so if one is not.
    exists: function (path) {
      if (fileOf(path)) return 1;
      var ext = extension(path);
      if (/^(bmp|gif|jpe?g|png|ico|cur|exe|dat)$/.test(ext) || /\/$/.test(path)) return 0;
      return urlOf(path) ? 1 : 0;
    },
    // A program of the menu's own folder is a sub-menu (its page comes with
    // its own export); any other needs Windows.
    needsWindows: function (program) {
      var p = (program || '').replace(/\\/g, '/');
      if (/\.exe$/i.test(p) && key(p).indexOf(key(FOLDER)) === 0 && p.indexOf('/', FOLDER.length) < 0 &&
          !/\/autorun\.exe$/i.test(p))
        return calls.openMenu(p);
      // Told once the script that asked has ended.
      page.pendingNotice = true;
    },
  };

  var pageSide = {
    call: function (name, arg) { var f = calls[name]; return f ? f(arg) : 0; },
    fileSize: function (path) { var f = fileOf(path); return f ? f.bytes.length : -1; },
    fileRead: function (path, into) { core.HEAPU8.set(fileOf(path).bytes, into); },
    messageBox: messageBox,
    inputBox: inputBox,
    messageBoxNow: messageBoxNow,
    inputBoxNow: inputBoxNow,
  };

  // ---- start --------------------------------------------------------------------


  // A page resized before the visitor moved the window keeps it centred.
  window.addEventListener('resize', function () {
    var w = page.scene && page.scene.window;
    if (!w) return;
    if (!page.dragged && !w.fullScreen) {
      w.left = Math.max(0, Math.floor((window.innerWidth - w.width) / 2));
      w.top = Math.max(0, Math.floor((window.innerHeight - w.height) / 2));
      send('qor_window_moved', ['number', 'number'], [w.left, w.top]);
    }
    layout();
  });

  // The player compiles while the pictures decode: the menu starts once both are ready.
  var started = performance.now();
  // The player's script (600 KB) loads after this one, so the preview
  // is on screen while it is read and compiled.
  function loadPlayer() {
    return new Promise(function (done, fail) {
      var script = document.createElement('script');
      script.src = encodeURIComponent(menu.folder) + '/qor_player.js';
      script.onload = done;
      script.onerror = function () { fail(new Error('qor_player.js')); };
      document.body.appendChild(script);
    }).then(function () { return QorPlayer({ qorPage: pageSide }); });
  }

  // The player is read and compiled, and the pictures' bytes decoded, once
  // the page's window is on screen: neither holds its first frame back.
  var painted = new Promise(function (done) {
    (function ask() { if (window.qorFirstFrame) setTimeout(done, 0); else requestAnimationFrame(ask); })();
  });
  Promise.all([painted.then(loadPlayer).then(function (m) { window.qorCompiled = performance.now(); return m; }),
               painted.then(loadImages).then(function () { window.qorDecoded = performance.now(); })]).then(function (ready) {
    window.qorFrontStart = started;
    var module = ready[0];
    core = module;
    window.qorCore = core;
    send('qor_start', ['string'], [FOLDER + menu.data]);
  });
})();
