/*
* Orvelin player: plays the button bars of Orvelin's applet code in the browser.
*
* Put it after the applet code:  <script src="orvelin-player.js"></script>
* It finds every <applet> whose code is "Orvel1b6.class" (present at load or added
* later), reads its parameters as the designer writes them and puts in its place an
* element of the same size and name that draws and plays the buttons as the design
* window shows them. A classic script with no dependencies; it works from file://.
*/
(function (global) {
  'use strict';

  if (!global.document)
    return;
  if (global.OrvelinPlayer) {
    // Loaded once more, for a second fragment: play what is new.
    global.OrvelinPlayer.scan();
    return;
  }

  var doc = global.document;
  var CODE = 'orvel1b6.class';

  // The 50 fields of a button parameter, in order, with their kinds as the designer's
  // field table names them; a test holds this list to the designer's.
  var FIELDS = ('x:Int16 y:Int16 Width:Int16 Height:Int16 LabelUP:Label LabelOVER:Label ' +
         'LabelDOWN:Label URL:Text Status:Text Target:Text Border:Int16 ' +
         'noBackGround:Int16 ShowHand:Int16 ImageUP:File ImageOVER:File ' +
         'ImageDOWN:File BackColorUP:Color BackColorOVER:Color BackColorDOWN:Color ' +
         'FontColorUP:Color FontColorOVER:Color FontColorDOWN:Color FontUP:Raw ' +
         'FontOVER:Raw FontDOWN:Raw FontStyleUP:Raw FontStyleOVER:Raw ' +
         'FontStyleDOWN:Raw FontSizeUP:Int16 FontSizeOVER:Int16 FontSizeDOWN:Int16 ' +
         'SndUP:File SndOVER:File SndDOWN:File ImgStyleUP:Int16 ImgStyleOVER:Int16 ' +
         'ImgStyleDOWN:Int16 PositionTextUP:Int16 PositionTextOVER:Int16 ' +
         'PositionTextDOWN:Int16 LabelPosXUP:Int16 LabelPosYUP:Int16 ' +
         'LabelPosXOVER:Int16 LabelPosYOVER:Int16 LabelPosXDOWN:Int16 ' +
         'LabelPosYDOWN:Int16 Hidden:Int16 ProgramUP:Raw ProgramOVER:Raw ' +
         'ProgramDOWN:Raw').split(' ').map(function (f) { return f.split(':'); });
  var STATES = ['UP', 'OVER', 'DOWN'];
  var MAX_BUTTONS = 101;

  // Faces the designer gets from fontconfig on Linux for the usual Windows names.
  var FACES = {
    'arial': '"Liberation Sans", Arimo',
    'helvetica': '"Liberation Sans", Arimo',
    'arial narrow': '"Liberation Sans Narrow"',
    'times new roman': '"Liberation Serif", Tinos',
    'times': '"Liberation Serif", Tinos',
    'courier new': '"Liberation Mono", Cousine',
    'courier': '"Liberation Mono", Cousine',
    'verdana': '"DejaVu Sans"',
    'tahoma': '"DejaVu Sans"',
    'georgia': '"DejaVu Serif"'
  };

  var tried = new WeakSet(); // applets played or failed: never again
  var players = [];

  function warn(text) {
    if (global.console && console.warn)
      console.warn('Orvelin player: ' + text);
  }

  // ---- Reading the parameters ---------------------------------------------------

  /** The designer's text decoding. The HTML parser may already have turned "&nbsp"
  *  into a no-break space (before "|" or at the end of the value): both are blanks. */
  function decodeText(text) {
    if (text.indexOf('&') < 0 && text.indexOf('\u00a0') < 0)
      return text;
    return text.replace(/\u00a0/g, ' ').split('&nbsp').join(' ')
      .split('&y01').join(';').split('&y02').join('"');
  }

  function readInt(text, what) {
    var n = parseInt(text, 10);
    if (String(n) === text)
      return n; // the generator's own form, the quick way
    if (!/^\s*-?\d+\s*$/.test(text))
      throw new Error(what + ' is not a whole number: "' + text + '"');
    return parseInt(text, 10);
  }

  /** "RRGGBB" as a CSS colour; an empty field (the generator writes none for some
  *  colours) gives null, which the caller gives its own meaning. */
  function readColor(text, what) {
    if (text === '')
      return null;
    if (!/^[0-9A-Fa-f]{6}$/.test(text))
      throw new Error(what + ' is not a colour: "' + text + '"');
    return '#' + text;
  }

  function readField(kind, text, what) {
    switch (kind) {
    case 'Int16':
      return readInt(text, what);
    case 'Color':
      return readColor(text, what);
    case 'Label':
    case 'Text':
      return decodeText(text);
    case 'File':
      // A bare file name beside the page, in the form the build wrote the file under
      // ("my&nbspclick.au"): only what the HTML parser decoded goes back.
      return text.replace(/\u00a0/g, '&nbsp');
    default:
      return text;
    }
  }

  function readButton(value) {
    if (value === null)
      throw new Error('the parameter is missing');
    var parts = value.split('|');
    if (parts.length <= FIELDS.length)
      throw new Error('it holds ' + (parts.length - 1) + ' fields, not ' + FIELDS.length);
    var b = {};
    for (var i = 0; i < FIELDS.length; i++)
      b[FIELDS[i][0]] = readField(FIELDS[i][1], parts[i], FIELDS[i][0]);
    return b;
  }

  /** The applet's own parameter "p"; a field that cannot be read keeps its default. */
  function readApplet(value, problems) {
    var parts = (value || '').split('|');
    function field(pos, kind, fallback) {
      if (pos >= parts.length - 1)
        return fallback;
      try {
        var v = readField(kind, parts[pos], 'p field ' + pos);
        return v === null ? fallback : v;
      } catch (e) {
        problems.push(e.message);
        return fallback;
      }
    }
    return {
      count: field(1, 'Int16', -1),
      behaviour: field(2, 'Int16', 0),
      downButton: field(3, 'Int16', 0),
      backColor: field(4, 'Color', null),
      backImage: field(5, 'File', ''),
      backImageStyle: field(6, 'Int16', 0),
      offsetX: field(12, 'Int16', 0),
      offsetY: field(13, 'Int16', 0),
      ProgramOVER: field(9, 'Raw', ''),
      ProgramDOWN: field(10, 'Raw', ''),
      ProgramOUT: field(11, 'Raw', ''),
      ProgramStart: field(15, 'Raw', '')
    };
  }

  // ---- Drawing --------------------------------------------------------------------

  function roundEven(v) {
    var r = Math.round(v);
    return Math.abs(v % 1) === 0.5 && r % 2 !== 0 ? r - 1 : r;
  }

  function parseHex(color) {
    var n = parseInt(color.slice(1), 16);
    return [(n >> 16) & 255, (n >> 8) & 255, n & 255];
  }

  /** The colour moved towards white (amount > 0) or black (< 0), as the border shades. */
  function shade(rgb, amount) {
    var target = amount > 0 ? 255 : 0, a = Math.abs(amount);
    return 'rgb(' + rgb.map(function (c) {
      return Math.round(c + (target - c) * a);
    }).join(',') + ')';
  }

  /** A rectangle of the bar snapped to device pixels, so edges stay sharp at any pixel
  *  ratio `r`; the context draws in device pixels. */
  function box(ctx, r, x, y, w, h, color) {
    var l = Math.round(x * r), t = Math.round(y * r);
    ctx.fillStyle = color;
    ctx.fillRect(l, t, Math.round((x + w) * r) - l, Math.round((y + h) * r) - t);
  }

  var shades = {};

  /** The four sides of the raised edge of a background colour: light outer and inner,
  *  dark outer and inner. */
  function edgeColors(back) {
    if (!shades[back]) {
      var rgb = parseHex(back);
      shades[back] = [shade(rgb, 0.65), shade(rgb, 0.35), shade(rgb, -0.6), shade(rgb, -0.3)];
    }
    return shades[back];
  }

  /** An image in an area `w` by `h`: 0 centred, 1 tiled, 2 stretched; moved by (ox, oy). */
  function drawPlaced(ctx, img, w, h, style, ox, oy) {
    var iw = img.naturalWidth, ih = img.naturalHeight;
    if (!iw || !ih)
      return;
    ctx.save();
    if (style === 1) {
      ctx.translate(ox, oy);
      ctx.fillStyle = ctx.createPattern(img, 'repeat');
      ctx.fillRect(-ox, -oy, w, h);
    } else if (style === 2) {
      // The designer stretches without smoothing.
      ctx.imageSmoothingEnabled = false;
      ctx.drawImage(img, ox, oy, w, h);
    } else {
      ctx.drawImage(img, Math.floor((w - iw) / 2) + ox, Math.floor((h - ih) / 2) + oy);
    }
    ctx.restore();
  }

  var fonts = {};

  /** The CSS font of a button state, with its line height and step rounded as the
  *  designer's font metrics are; measured once per font. */
  function labelFont(ctx, face, style, size) {
    var key = style + '|' + size + '|' + face;
    var f = fonts[key];
    if (!f) {
      var code = style.length === 1 ? style.charCodeAt(0) - 48 : 0;
      var lower = (face || 'Arial').toLowerCase();
      var generic = /mono|courier/.test(lower) ? 'monospace'
        : /serif|times|georgia|roman/.test(lower) && !/sans/.test(lower) ? 'serif'
        : 'sans-serif';
      f = fonts[key] = {
        css: (code === 2 || code === 3 ? 'italic ' : '') +
          (code === 1 || code === 3 ? 'bold ' : '') + (size * 4 / 3) + 'px "' +
          (face || 'Arial').replace(/["\\]/g, '') + '", ' +
          (FACES[lower] ? FACES[lower] + ', ' : '') + generic
      };
      ctx.font = f.css;
      var t = ctx.measureText('Hg');
      var ascent = t.fontBoundingBoxAscent, descent = t.fontBoundingBoxDescent;
      if (ascent === undefined) {
        ascent = t.actualBoundingBoxAscent;
        descent = t.actualBoundingBoxDescent;
      }
      f.height = Math.round(ascent) + Math.round(descent);
      f.step = f.height + 1;
    }
    ctx.font = f.css;
    return f;
  }

  function drawLabel(ctx, b, s, color) {
    var size = b['FontSize' + s];
    var label = b['Label' + s];
    if (!label || size <= 0 || size > 2048)
      return;
    var m = labelFont(ctx, b['Font' + s], b['FontStyle' + s], size);
    ctx.fillStyle = color;
    var lines = label.split('\\n');
    var k;
    if (b['PositionText' + s] !== 0) {
      for (k = 0; k < lines.length; k++)
        ctx.fillText(lines[k], b['LabelPosX' + s], b['LabelPosY' + s] + k * m.step);
      return;
    }
    // One line sits with its baseline at Height/2 + TextHeight/3; more lines keep that
    // reference for the middle of the block.
    var reference = b.Height / 2 + m.height / 3;
    for (k = 0; k < lines.length; k++) {
      var left = roundEven(b.Width / 2 - Math.round(ctx.measureText(lines[k]).width) / 2);
      var base = roundEven(reference + (k - (lines.length - 1) / 2) * m.step);
      ctx.fillText(lines[k], left, base);
    }
  }

  // ---- Sounds -------------------------------------------------------------------

  /** Sun audio as channels of samples from -1 to 1: mu-law, A-law, linear 8 to 32 bits
  *  and floats, big-endian as the format has it. */
  function decodeAu(bytes) {
    var v = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
    if (bytes.length < 24 || v.getUint32(0) !== 0x2e736e64)
      throw new Error('no Sun audio');
    var start = v.getUint32(4), size = v.getUint32(8), code = v.getUint32(12);
    var rate = v.getUint32(16), channels = v.getUint32(20);
    var width = { 1: 1, 2: 1, 3: 2, 4: 3, 5: 4, 6: 4, 7: 8, 27: 1 }[code];
    if (!width || !channels || !rate)
      throw new Error('encoding ' + code + ' is not played');
    var end = Math.min(bytes.length, size === 0xffffffff ? Infinity : start + size);
    var frames = Math.max(0, Math.floor((end - start) / width / channels));
    var out = [];
    for (var c = 0; c < channels; c++)
      out.push(new Float32Array(frames));
    for (var i = 0, at = start; i < frames; i++) {
      for (c = 0; c < channels; c++, at += width) {
        var x;
        switch (code) {
        case 1:
        case 27:
          x = code === 1 ? ulaw(bytes[at]) : alaw(bytes[at]);
          break;
        case 2: x = v.getInt8(at) / 128; break;
        case 3: x = v.getInt16(at) / 32768; break;
        case 4: x = ((v.getInt8(at) << 16) | v.getUint16(at + 1)) / 8388608; break;
        case 5: x = v.getInt32(at) / 2147483648; break;
        case 6: x = v.getFloat32(at); break;
        default: x = v.getFloat64(at);
        }
        out[c][i] = x;
      }
    }
    return { rate: rate, channels: out };
  }

  function ulaw(u) {
    u = ~u & 255;
    var t = (((u & 15) << 3) + 132) << ((u & 112) >> 4);
    return (u & 128 ? 132 - t : t - 132) / 32768;
  }

  function alaw(a) {
    a ^= 85;
    var seg = (a & 112) >> 4, t = ((a & 15) << 4) + (seg ? 264 : 8);
    if (seg > 1)
      t <<= seg - 1;
    return (a & 128 ? t : -t) / 32768;
  }

  // The first gesture of the visitor lets sounds start, as browsers require.
  var audio = null, sounds = {}, GESTURES = ['pointerdown', 'pointerup', 'keydown', 'touchend'];
  function unlock() {
    GESTURES.forEach(function (t) { doc.removeEventListener(t, unlock, true); });
    var Context = global.AudioContext || global.webkitAudioContext;
    guard(function () {
      if (Context)
        audio = new Context();
    });
  }
  GESTURES.forEach(function (t) { doc.addEventListener(t, unlock, true); });

  /** Gets a sound ready: a Sun audio file comes as the script the build writes beside it
  *  ("click.au.js" registers the bytes of "click.au"), which a page opened from disk
  *  may load where it may not read the file itself; other formats the browser plays. */
  function loadSound(name, owner) {
    if (!name || sounds[name])
      return;
    var entry = sounds[name] = {};
    if (!/\.au$/i.test(name)) {
      entry.element = new Audio(encodeURIComponent(name));
      entry.element.preload = 'auto';
      return;
    }
    var script = doc.createElement('script');
    script.src = encodeURIComponent(name) + '.js';
    script.onerror = function () {
      warn('applet "' + owner + '": sound ' + name + ' could not be loaded (' +
        name + '.js is missing)');
    };
    (doc.head || doc.documentElement).appendChild(script);
  }

  function playSound(name, owner) {
    var entry = sounds[name];
    if (!entry || !audio || entry.failed)
      return;
    try {
      startSound(entry, name);
    } catch (e) {
      entry.failed = true;
      warn('applet "' + owner + '": sound ' + name + ': ' + e.message);
    }
  }

  function startSound(entry, name) {
    if (entry.element) {
      entry.element.currentTime = 0;
      var played = entry.element.play();
      if (played && played.catch)
        played.catch(function () {});
      return;
    }
    if (!entry.buffer) {
      var text = (global.OrvelinSounds || {})[name];
      if (!text)
        return; // not loaded (yet)
      var bin = atob(text), bytes = new Uint8Array(bin.length);
      for (var i = 0; i < bin.length; i++)
        bytes[i] = bin.charCodeAt(i);
      var d = decodeAu(bytes);
      entry.buffer = audio.createBuffer(d.channels.length, Math.max(1, d.channels[0].length), d.rate);
      d.channels.forEach(function (data, c) { entry.buffer.getChannelData(c).set(data); });
    }
    if (audio.state === 'suspended')
      audio.resume();
    var source = audio.createBufferSource();
    source.buffer = entry.buffer;
    source.connect(audio.destination);
    source.start();
  }

  // ---- The player ---------------------------------------------------------------

  var STYLE = '.orvelin-player{display:inline-block;position:relative;overflow:hidden;' +
    'vertical-align:baseline;text-align:left;-webkit-tap-highlight-color:transparent}' +
    '.orvelin-player>canvas{position:absolute;left:0;top:0;' +
    'width:100%;height:100%}' +
    '.orvelin-player>a,.orvelin-player>span{position:absolute;display:block;outline:none}' +
    '.orvelin-player>:focus-visible{outline:2px solid #000;outline-offset:-2px}' +
    '.orvelin-player>:focus-visible::after{content:"";position:absolute;left:2px;top:2px;' +
    'right:2px;bottom:2px;border:1px solid #fff}';

  function addStyle() {
    if (doc.getElementById('orvelin-player-style'))
      return;
    var style = doc.createElement('style');
    style.id = 'orvelin-player-style';
    style.textContent = STYLE;
    (doc.head || doc.documentElement).appendChild(style);
  }

  function Player(applet) {
    var self = this;
    var params = {};
    var list = applet.getElementsByTagName('param');
    for (var i = 0; i < list.length; i++) {
      var key = list[i].getAttribute('name');
      if (key !== null && !(key in params))
        params[key] = list[i].getAttribute('value');
    }
    var problems = [];
    this.name = applet.getAttribute('name') || '';
    this.width = Math.max(0, parseInt(applet.getAttribute('width'), 10) || 0);
    this.height = Math.max(0, parseInt(applet.getAttribute('height'), 10) || 0);
    if (params.p === undefined)
      problems.push('the parameter p is missing');
    this.applet = readApplet(params.p, problems);
    if (problems.length)
      warn('applet "' + this.name + '": ' + problems.join('; '));
    // Without a readable count, the numbered parameters there are; never past the 101
    // buttons an applet can hold.
    var count = this.applet.count;
    if (count < 0)
      for (count = 0; String(count + 1) in params;)
        count++;
    count = Math.min(count, MAX_BUTTONS);
    this.images = {};
    this.ratio = global.devicePixelRatio || 1;
    this.selected = null;

    var el = this.element = doc.createElement('span');
    el.className = 'orvelin-player';
    ['name', 'id', 'class', 'style', 'title', 'align'].forEach(function (a) {
      var v = applet.getAttribute(a);
      if (v !== null)
        el.setAttribute(a, a === 'class' ? 'orvelin-player ' + v : v);
    });
    el.style.width = this.width + 'px';
    el.style.height = this.height + 'px';
    el.orvelinPlayer = this;
    this.listen();
    // One canvas draws the whole bar; the buttons' own elements above it are clear.
    this.canvas = doc.createElement('canvas');
    this.canvas.setAttribute('aria-hidden', 'true');
    el.appendChild(this.canvas);

    this.buttons = [];
    var markup = '';
    for (var n = 1; n <= count; n++) {
      try {
        var b = readButton(params[String(n)] === undefined ? null : params[String(n)]);
        markup += this.buttonMarkup(n, b);
        this.buttons.push(b);
      } catch (e) {
        warn('applet "' + this.name + '", button ' + n + ' left out: ' + e.message);
      }
    }
    // The buttons' elements in one piece of markup: much quicker than one by one.
    el.insertAdjacentHTML('beforeend', markup);
    for (var k = 0; k < this.buttons.length; k++) {
      this.buttons[k].element = el.children[k + 1];
      el.children[k + 1].orvelinButton = this.buttons[k];
    }
    this.waiting = 0;
    this.ready = new Promise(function (resolve) {
      self.resolveReady = resolve;
    });
    // Every state's image starts loading now, so that a hover shows it at once.
    this.image(this.applet.backImage);
    this.buttons.forEach(function (b) {
      STATES.forEach(function (s) {
        self.image(b['Image' + s]);
        loadSound(b['Snd' + s], self.name);
      });
    });
    applet.parentNode.replaceChild(el, applet);
    this.redraw();
    if (!this.waiting)
      this.resolveReady();
    this.runs = {};
  }

  /** The image of a bare file name beside the page; null while it loads or when it fails. */
  Player.prototype.image = function (name) {
    if (!name)
      return null;
    var entry = this.images[name], self = this;
    if (!entry) {
      entry = this.images[name] = { img: new Image(), done: false };
      this.waiting++;
      var settle = function (ok) {
        entry.done = ok;
        if (--self.waiting === 0) {
          guard(function () { self.redraw(); });
          self.resolveReady();
        }
      };
      entry.img.onload = function () { settle(true); };
      entry.img.onerror = function () {
        warn('applet "' + self.name + '": image ' + name + ' could not be loaded');
        settle(false);
      };
      entry.img.src = encodeURIComponent(name);
    }
    return entry.done ? entry.img : null;
  };

  function attribute(name, value) {
    if (/[&"<]/.test(value))
      value = value.replace(/&/g, '&amp;').replace(/"/g, '&quot;').replace(/</g, '&lt;');
    return ' ' + name + '="' + value + '"';
  }

  /** The element of a button: a link where it has a URL, else a button; named by its label. */
  Player.prototype.buttonMarkup = function (n, b) {
    b.number = n;
    b.state = 'UP';
    b.hover = b.pressed = false;
    var link = b.URL !== '';
    var html = link ? '<a' + attribute('href', b.URL) : '<span role="button" tabindex="0"';
    // A "javascript:" link runs in this page whatever its target.
    if (link && b.Target && !/^\s*javascript:/i.test(b.URL))
      html += attribute('target', b.Target);
    var name = b.LabelUP.split('\\n').join(' ').trim() || b.Status || b.URL;
    if (name)
      html += attribute('aria-label', name);
    if (b.Status)
      html += attribute('title', b.Status);
    html += ' style="left:' + b.x + 'px;top:' + b.y + 'px;width:' + Math.max(0, b.Width) +
      'px;height:' + Math.max(0, b.Height) + 'px;cursor:' +
      (b.ShowHand !== 0 ? 'pointer' : 'default') + (b.Hidden !== 0 ? ';display:none' : '') +
      '">';
    return html + (link ? '</a>' : '</span>');
  };

  /** The bar's own listeners, one of each for all its buttons. */
  Player.prototype.listen = function () {
    var self = this;
    function on(type, handler) {
      self.element.addEventListener(type, function (e) {
        var b = e.target && e.target.orvelinButton;
        if (b)
          guard(function () { handler(e, b, b.element.tagName === 'A'); });
      });
    }
    // The applet's own programs: entering, leaving (by pointer or focus) and pressing.
    // Pointer (1) and keyboard focus (2) may both be inside; the programs run on the
    // first in and the last out. Focus that a click gives counts for nothing, or a
    // clicked button would never be left.
    function cross(o, into, bit) {
      var before = o.inside | 0;
      o.inside = into ? before | bit : before & ~bit;
      return !before !== !o.inside;
    }
    function edge(into, bit) {
      if (cross(self, into, bit))
        guard(function () { self.run(self.applet[into ? 'ProgramOVER' : 'ProgramOUT'], 'A'); });
    }
    function enter(b, into, bit) {
      if (cross(b, into, bit))
        self.program(b, into ? 'OVER' : 'UP');
    }
    var el = self.element;
    // Over, not enter: the bar is entered before the button under the pointer.
    el.addEventListener('pointerover', function (e) {
      if (!el.contains(e.relatedTarget))
        edge(true, 1);
    });
    el.addEventListener('pointerleave', function () { edge(false, 1); });
    function keyed(e) {
      try {
        return e.target.matches(':focus-visible');
      } catch (x) {
        return true; // a browser without :focus-visible
      }
    }
    el.addEventListener('focusin', function (e) {
      if (keyed(e))
        edge(true, 2);
    });
    el.addEventListener('focusout', function (e) {
      if (!el.contains(e.relatedTarget))
        edge(false, 2);
    });
    el.addEventListener('pointerdown', function (e) {
      if (e.button === 0)
        guard(function () { self.run(self.applet.ProgramDOWN, 'A'); });
    });
    // The keyboard: a focused button is entered, a blurred one left.
    on('focusin', function (e, b) {
      if (keyed(e))
        enter(b, true, 2);
    });
    on('focusout', function (e, b) {
      enter(b, false, 2);
    });
    on('pointerover', function (e, b) {
      enter(b, true, 1);
      b.hover = true;
      if (!e.buttons)
        b.pressed = false; // released elsewhere
      self.update(b);
    });
    on('pointerout', function (e, b) {
      enter(b, false, 1);
      b.hover = false;
      self.update(b);
    });
    on('pointerdown', function (e, b) {
      if (e.button !== 0)
        return;
      b.pressed = 'pointer';
      self.program(b, 'DOWN');
      // A touch captures its pointer; released, a finger sliding off leaves the button.
      if (b.element.hasPointerCapture && b.element.hasPointerCapture(e.pointerId))
        b.element.releasePointerCapture(e.pointerId);
      self.update(b);
    });
    on('pointerup', function (e, b) {
      if (!b.pressed)
        return;
      b.pressed = false;
      if (e.pointerType !== 'mouse')
        b.hover = false; // a tap leaves nothing under a pointer
      self.activate(b);
    });
    on('pointercancel', function (e, b) {
      b.pressed = b.hover = false;
      self.update(b);
    });
    on('keydown', function (e, b, link) {
      if (e.key !== ' ' && e.key !== 'Enter')
        return;
      if (e.key === ' ')
        e.preventDefault(); // no scrolling
      if (!e.repeat) {
        self.program(b, 'DOWN');
        self.run(self.applet.ProgramDOWN, 'A');
        b.pressed = 'key';
        self.update(b);
      }
      if (e.key === 'Enter' && !link) {
        b.pressed = false;
        self.activate(b);
      }
    });
    on('keyup', function (e, b, link) {
      if ((e.key === ' ' || e.key === 'Enter') && b.pressed) {
        b.pressed = false;
        self.activate(b);
        if (e.key === ' ' && link)
          b.element.click();
      }
    });
    on('click', function (e, b, link) {
      // A click of no pointer and no key: assistive technology.
      if (!link && e.detail === 0 && !b.pressed) {
        self.program(b, 'DOWN');
        self.activate(b);
      }
    });
    self.element.addEventListener('focusout', function (e) {
      var b = e.target && e.target.orvelinButton;
      if (b && b.pressed) {
        b.pressed = false;
        guard(function () { self.update(b); });
      }
    });
  };

  /** A completed press: radio buttons keep the last one down. */
  Player.prototype.activate = function (b) {
    if (this.applet.behaviour === 1) {
      var before = this.selected;
      this.selected = b;
      if (before && before !== b) {
        before.element.removeAttribute('aria-pressed');
        this.update(before);
      }
      // Screen readers hear which radio button is down.
      if (b.element.tagName !== 'A')
        b.element.setAttribute('aria-pressed', 'true');
    }
    this.update(b);
  };

  Player.prototype.stateOf = function (b) {
    var radio = this.applet.behaviour === 1;
    if (b.forced)
      return b.forced;
    if (b.pressed === 'key' || (b.pressed && b.hover))
      return radio || this.applet.downButton !== 0 ? 'DOWN' : 'OVER';
    if (radio && this.selected === b)
      return 'DOWN';
    return b.hover ? 'OVER' : 'UP';
  };

  Player.prototype.update = function (b) {
    var s = this.stateOf(b);
    if (s !== b.state) {
      b.state = s;
      playSound(b['Snd' + s], this.name);
      this.paint(b.x, b.y, b.Width, b.Height);
    }
  };

  Player.prototype.redraw = function () {
    var r = this.ratio = global.devicePixelRatio || 1;
    var pw = Math.max(1, Math.round(this.width * r)), ph = Math.max(1, Math.round(this.height * r));
    if (this.canvas.width !== pw || this.canvas.height !== ph) {
      this.canvas.width = pw;
      this.canvas.height = ph;
    }
    this.paint(0, 0, this.width, this.height);
  };

  /** Paints a rectangle of the bar again: the background, then every button over it in
  *  order, each clipped to itself as the design window's pictures are. The context
  *  draws in device pixels; labels and images scale themselves. */
  Player.prototype.paint = function (x, y, w, h) {
    var ctx = this.canvas.getContext('2d'), r = this.ratio;
    ctx.save();
    ctx.setTransform(r, 0, 0, r, 0, 0);
    ctx.beginPath();
    ctx.rect(x, y, w, h);
    ctx.clip();
    ctx.clearRect(x, y, w, h);
    ctx.setTransform(1, 0, 0, 1, 0, 0);
    this.drawBackground(ctx);
    for (var i = 0; i < this.buttons.length; i++) {
      var b = this.buttons[i];
      if (b.x < x + w && x < b.x + b.Width && b.y < y + h && y < b.y + b.Height)
        this.drawButton(ctx, b);
    }
    ctx.restore();
  };

  Player.prototype.drawBackground = function (ctx) {
    var a = this.applet, r = this.ratio;
    // An empty background colour lets the page show through.
    if (a.backColor)
      box(ctx, r, 0, 0, this.width, this.height, a.backColor);
    var img = this.image(a.backImage);
    if (img) {
      ctx.setTransform(r, 0, 0, r, 0, 0);
      drawPlaced(ctx, img, this.width, this.height, a.backImageStyle, a.offsetX, a.offsetY);
      ctx.setTransform(1, 0, 0, 1, 0, 0);
    }
  };

  Player.prototype.drawButton = function (ctx, b) {
    if (b.Hidden !== 0 || b.Width <= 0 || b.Height <= 0)
      return;
    var s = b.state, r = this.ratio, x = b.x, y = b.y, w = b.Width, h = b.Height;
    ctx.save();
    try {
      ctx.setTransform(r, 0, 0, r, 0, 0);
      ctx.beginPath();
      ctx.rect(x, y, w, h);
      ctx.clip();
      ctx.setTransform(1, 0, 0, 1, 0, 0);
      var back = b['BackColor' + s];
      if (b.noBackGround !== 0) {
        // The applet background under the button, never the buttons below it; a
        // button reaching out of the applet shows what is under it.
        if (x >= 0 && y >= 0 && x + w <= this.width && y + h <= this.height) {
          ctx.clearRect(0, 0, this.canvas.width, this.canvas.height);
          this.drawBackground(ctx);
        }
      } else if (back) {
        box(ctx, r, x, y, w, h, back);
      }
      ctx.setTransform(r, 0, 0, r, r * x, r * y);
      var img = this.image(b['Image' + s]);
      if (img)
        drawPlaced(ctx, img, w, h, b['ImgStyle' + s], 0, 0);
      drawLabel(ctx, b, s, b['FontColor' + s] ||
           global.getComputedStyle(this.element).color || '#000');
      ctx.setTransform(1, 0, 0, 1, 0, 0);
      if (b.Border !== 0 && w >= 2 && h >= 2) {
        var c = edgeColors(back || '#808080');
        // The dark sides come last and own the corners, as a raised edge does.
        box(ctx, r, x, y, w - 1, 1, c[0]);
        box(ctx, r, x, y, 1, h - 1, c[0]);
        box(ctx, r, x, y + h - 1, w, 1, c[2]);
        box(ctx, r, x + w - 1, y, 1, h, c[2]);
        if (w >= 4 && h >= 4) {
          box(ctx, r, x + 1, y + 1, w - 3, 1, c[1]);
          box(ctx, r, x + 1, y + 1, 1, h - 3, c[1]);
          box(ctx, r, x + 1, y + h - 2, w - 2, 1, c[3]);
          box(ctx, r, x + w - 2, y + 1, 1, h - 2, c[3]);
        }
      }
    } catch (e) {
      if (!b.failed)
        warn('applet "' + this.name + '", button ' + b.number + ': ' + e.message);
      b.failed = true;
    }
    ctx.restore();
  };

  /** Shows button `n` (1-based) in `state` ("UP", "OVER", "DOWN"), or as the pointer
  *  says again when `state` is empty. */
  Player.prototype.setState = function (n, state) {
    var b = this.button(n);
    if (b) {
      b.forced = STATES.indexOf(state) >= 0 ? state : null;
      this.update(b);
    }
  };

  Player.prototype.setHidden = function (n, hidden) {
    var b = this.button(n);
    if (b) {
      b.Hidden = hidden ? 1 : 0;
      b.element.style.display = hidden ? 'none' : '';
      this.paint(b.x, b.y, b.Width, b.Height);
    }
  };

  // ---- Programs -------------------------------------------------------------------

  /** Runs the program of a button's state slot. */
  Player.prototype.program = function (b, s) {
    this.run(b['Program' + s], s + b.number);
  };

  /**
  * Runs program text; `slot` names where it comes from. A run that starts while an
  * earlier run of the same slot still waits replaces it: the earlier run's remaining
  * commands are dropped. Runs of different slots go on side by side.
  */
  Player.prototype.run = function (text, slot) {
    var lines = String(text || '').split(';');
    lines.pop(); // what follows the last ";" is no command
    var runs = this.runs, self = this, mark = {};
    if (slot)
      runs[slot] = mark;
    var i = 0;
    (function next() {
      while (i < lines.length) {
        if (slot && runs[slot] !== mark)
          return;
        var line = lines[i++];
        var wait = -1;
        try {
          wait = self.command(line);
        } catch (e) {
          warn('applet "' + self.name + '": command "' + line + '" skipped: ' + e.message);
        }
        if (wait >= 0)
          return void setTimeout(function () { guard(next); }, wait);
      }
    })();
  };

  /** Carries out one command line; a Wait gives its milliseconds, the others -1. */
  Player.prototype.command = function (line) {
    var w = line.split(' ');
    var need = [0, 2, 2, 6, 4, 4, 2, 3][w[0]];
    if (!/^[1-7]$/.test(w[0]) || w.length < need)
      throw new Error('no command');
    if (w[0] === '6') {
      var ms = Number(w[1].replace(',', '.')); // a decimal comma too
      if (!(ms >= 0))
        throw new Error('no time');
      return ms;
    }
    if (w[0] === '7') {
      var code = decodeText(w.slice(2).join(' '));
      try {
        (0, global.eval)(code); // in the page's own scope
      } catch (e) {
        warn('applet "' + this.name + '": JavaScript "' + code + '" failed: ' + e.message);
      }
      return -1;
    }
    var n = readInt(w[1], 'the button'), b = this.button(n);
    if (!b)
      throw new Error('there is no button ' + n);
    var s = w[0] === '4' || w[0] === '5' ? STATES[readInt(w[2], 'the state') - 1] : '';
    if (s === undefined)
      throw new Error('no state ' + w[2]);
    switch (w[0]) {
    case '1':
    case '2':
      this.setHidden(n, w[0] === '2');
      break;
    case '3':
      var box = w.slice(2, 6).map(function (v) { return readInt(v, 'a size'); });
      this.move(b, box[0], box[1], box[2], box[3]);
      break;
    case '4':
      b['Label' + s] = decodeText(w.slice(3).join(' '));
      if (s === 'UP' && b.LabelUP.trim())
        b.element.setAttribute('aria-label', b.LabelUP.split('\\n').join(' ').trim());
      this.paint(b.x, b.y, b.Width, b.Height);
      break;
    default:
      b['BackColor' + s] = readColor(w[3], 'the colour') || b['BackColor' + s];
      this.paint(b.x, b.y, b.Width, b.Height);
    }
    return -1;
  };

  /** Moves and sizes a button; -999 keeps a value. A hidden button moves unseen. */
  Player.prototype.move = function (b, x, y, w, h) {
    var old = [b.x, b.y, b.Width, b.Height];
    if (x !== -999)
      b.x = x;
    if (y !== -999)
      b.y = y;
    if (w !== -999)
      b.Width = w;
    if (h !== -999)
      b.Height = h;
    var st = b.element.style;
    st.left = b.x + 'px';
    st.top = b.y + 'px';
    st.width = Math.max(0, b.Width) + 'px';
    st.height = Math.max(0, b.Height) + 'px';
    this.paint(old[0], old[1], old[2], old[3]);
    this.paint(b.x, b.y, b.Width, b.Height);
  };

  Player.prototype.button = function (n) {
    for (var i = 0; i < this.buttons.length; i++)
      if (this.buttons[i].number === n)
        return this.buttons[i];
    return null;
  };

  // ---- Finding applets ----------------------------------------------------------

  function guard(fn) {
    try {
      fn();
    } catch (e) {
      warn(e && e.message ? e.message : String(e));
    }
  }

  function isOurs(node) {
    return node.nodeType === 1 && node.tagName.toLowerCase() === 'applet' &&
      (node.getAttribute('code') || '').toLowerCase() === CODE;
  }

  function play(applet) {
    if (!applet.parentNode || tried.has(applet))
      return;
    tried.add(applet);
    guard(function () {
      addStyle();
      var p = new Player(applet);
      players.push(p);
      p.run(p.applet.ProgramStart, 'Start'); // page scripts may already find the bar
    });
  }

  function scan() {
    var found = doc.getElementsByTagName('applet');
    var todo = [];
    for (var i = 0; i < found.length; i++)
      if (isOurs(found[i]))
        todo.push(found[i]);
    todo.forEach(play);
  }

  guard(scan);

  if (typeof MutationObserver === 'function') {
    new MutationObserver(function (records) {
      // While the page is still being read an applet may lack its parameters yet;
      // those wait for the end of the page.
      if (doc.readyState === 'loading')
        return;
      guard(function () {
        for (var i = 0; i < records.length; i++) {
          var added = records[i].addedNodes;
          for (var j = 0; j < added.length; j++) {
            var node = added[j];
            if (isOurs(node))
              play(node);
            else if (node.nodeType === 1 && node.getElementsByTagName)
              Array.prototype.slice.call(node.getElementsByTagName('applet'))
                .filter(isOurs).forEach(play);
          }
        }
      });
    }).observe(doc.documentElement, { childList: true, subtree: true });
  }
  if (doc.readyState === 'loading')
    doc.addEventListener('DOMContentLoaded', function () { guard(scan); });

  // A new pixel ratio (zoom, another screen) redraws everything at the new resolution.
  global.addEventListener('resize', function () {
    guard(function () {
      players.forEach(function (p) {
        if ((global.devicePixelRatio || 1) !== p.ratio)
          p.redraw();
      });
    });
  });

  function encode(text) {
    return String(text).replace(/ /g, '&nbsp').replace(/;/g, '&y01').replace(/"/g, '&y02');
  }

  /** What page scripts drive a bar with: the commands of a program, by button number
  *  (1-based) and state (1 UP, 2 OVER, 3 DOWN). */
  function bar(name) {
    var p = null;
    players.forEach(function (q) {
      if (!p && q.name === name && doc.contains(q.element))
        p = q;
    });
    if (!p)
      return null;
    function one(line) {
      p.run(line + ';');
    }
    return {
      show: function (n) { one('1 ' + n); },
      hide: function (n) { one('2 ' + n); },
      move: function (n, x, y, w, h) {
        one(['3', n, x, y, w, h].map(function (v) {
          return v === undefined || v === null ? -999 : v;
        }).join(' '));
      },
      setLabel: function (n, s, text) { one('4 ' + n + ' ' + s + ' ' + encode(text)); },
      setColor: function (n, s, rgb) { one('5 ' + n + ' ' + s + ' ' + String(rgb).replace('#', '')); },
      /** As if pressed: its DOWN program runs, and in radio mode it stays down. */
      press: function (n) {
        var b = p.button(Number(n));
        if (!b)
          return warn('applet "' + name + '": there is no button ' + n);
        p.program(b, 'DOWN');
        p.activate(b);
      },
      run: function (text) { p.run(text); }
    };
  }

  global.OrvelinPlayer = {
    scan: function () { guard(scan); }, players: players, bar: bar, decodeAu: decodeAu
  };
})(typeof window !== 'undefined' ? window : this);
