"""What a person does with the editor, start to saved file.

Each journey starts the staged editor on its own desktop (desktop.py),
works through the windows with the mouse and the keyboard, looks at the
screen and ends by saving the project through "Fichier" and reading the
file back. Places inside a window are client-area offsets of the editor's
own layout on this 1280 x 1024 screen; a journey that misses a control
fails on what it then sees (or does not see), never passes by accident.
"""

import os
import re
import time

from desktop import JourneyFailed, Window, distance, need, read_project, section, write_bmp

# Client-area offsets of the controls a journey uses.
TOOLBOX = {"Multimédia": (79, 50), "Quitter": (79, 78), "Code VBS": (79, 106), "Créer": (79, 176),
           "Editeur": (79, 244), "Transparence": (79, 272)}
SHAPE_PANEL = {"Aperçu": (70, 50), "Recommencer": (70, 78), "Pas de forme": (70, 106), "Valider": (70, 134),
               "Annuler": (70, 162), "Charger": (70, 231), "Sauver": (70, 259)}

# The properties panel ("Paramètres") showing a button, and the window.
PANEL_BUTTON = {"Actions au survol": (141, 238), "Modifier la position": (94, 261)}
PANEL_SELECTOR = (90, 12)
# The window's panel scrolled to its end.
PANEL_SCROLLED = {"Minuteur": (11, 146), "timer Modif.": (141, 229), "global Modif.": (141, 295)}
PANEL_WINDOW = {"OK": (164, 99), "Couleur de fond": (123, 190), "Minuteur": (11, 313), "timer Modif.": (141, 396)}
# The appearance editor of the main window, once it is tall.
APPEARANCE = {"list": (188, 81), "Charger": (414, 81), "Sauver": (414, 169), "Fermer": (419, 252)}
# "Propriétés": the read-only "Editeur :" field, "Notes :" and "Valider".
INFO_EDITOR = (250, 40)
INFO_NOTES = (250, 300)
INFO_VALIDER = (251, 407)

WHITE = (255, 255, 255)
# "Sombre": window background 0x618B8B and field background 0x21B3B1 (BGR).
SOMBRE_WINDOW = (0x8B, 0x8B, 0x61)
SOMBRE_FIELD = (0xB1, 0xB3, 0x21)


# The captions a journey finds windows by, in the editor's two languages.
FRENCH = {"toolbox": "^Objets$", "panel": "^Paramètres$", "sheet": "^Feuille de travail", "save": "^Enregistrer",
          "properties": "^Propriétés$"}
ENGLISH = {"toolbox": "^Objects$", "panel": "^Settings$", "sheet": "^Worksheet", "save": "^Save",
           "properties": "^Properties$",
           # Shorter captions wrap less: the window's panel below "Bordure" stands elsewhere.
           "window panel": {"Couleur de fond": (133, 189), "Minuteur": (11, 327), "timer Modif.": (140, 404)}}


class Editor:
    """The editor's four main windows, once it has started."""

    def __init__(self, desktop, *args, captions=FRENCH):
        self.d = desktop
        self.captions = captions
        self.main = desktop.start_editor(*args)
        self.toolbox = desktop.window(captions["toolbox"])
        self.panel = desktop.window(captions["panel"])
        self.sheet = desktop.window(captions["sheet"])

    def menu(self, title_key, *keys):
        """A command of the main window's menus, by its underlined letters."""
        self.main.activate()
        self.d.key("alt+" + title_key)
        time.sleep(0.3)
        for k in keys:
            self.d.key(k)
            time.sleep(0.2)

    def tool(self, caption):
        self.toolbox.click(*TOOLBOX[caption])

    def question(self, caption, answer, buttons=("Oui", "Non", "Annuler")):
        """A question answered with the mouse on its button, counted from the right."""
        box = self.d.window("^%s$" % re.escape(caption))
        _, _, width, height = box.geometry()
        offset = (54, 143, 237)[len(buttons) - 1 - buttons.index(answer)]
        box.click(width - offset, height - 24)
        self.d.gone(box)

    def message(self, caption):
        """A one-button message: read by its caption, closed with Return."""
        box = self.d.window("^%s$" % re.escape(caption))
        box.activate()
        self.d.key("Return")
        self.d.gone(box)

    def images(self, *paths):
        """The image dialogs a new button asks, answered one after the other."""
        for caption, path in zip(("^Image normale", "^Image au survol", "^Image clique"), paths):
            self.d.answer_file_dialog(caption, path)

    def save_as(self, name):
        path = self.d.file(name)
        self.menu("f", "s")
        self.d.answer_file_dialog(self.captions["save"], path)
        self.d.wait_for_file(path, "the project saved as " + name)
        return read_project(path)

    def close_window(self, window):
        """Closed with the window manager's Alt+F4, as a person closes it."""
        window.activate()
        self.d.key("alt+F4")
        self.d.gone(window)


def answer_each(d, caption, at_most, wait, answer):
    """Answers each window of that caption as it shows, until none comes."""
    for _ in range(at_most):
        try:
            window = d.window(caption, limit=wait)
        except JourneyFailed:
            return
        window.activate()
        answer()
        d.gone(window)


def colours_of(desktop):
    return {name: write_bmp(desktop.file(name + ".bmp"), 60, 24, colour)
            for name, colour in (("rouge", (255, 0, 0)), ("vert", (0, 160, 0)), ("bleu", (0, 0, 255)))}


def button_block(lines, number):
    blocks = [i for i, line in enumerate(lines) if line == "[Bouton]"]
    need(len(blocks) >= number, "the project has %d button blocks, not %d" % (len(blocks), number))
    return section(lines[blocks[number - 1]:], "[Bouton]")


# --- scripts ----------------------------------------------------------------

SCRIPT_TEXT_AREA = (300, 200)
SCRIPT_EDITOR = {"Assistant": (130, 12)}
# The procedure list sits at the strip's right end, this far from the edge.
SCRIPT_PROCEDURES_FROM_RIGHT = (98, 12)


def scripts(d):
    e = Editor(d)
    pictures = colours_of(d)
    e.tool("Code VBS")
    e.images(pictures["rouge"], pictures["vert"], pictures["bleu"])
    panel_hover = PANEL_BUTTON["Actions au survol"]
    e.panel.click(*panel_hover)
    editor = d.window("^Actions au survol du bouton 1$")
    before = d.screenshot()
    editor.click(*SCRIPT_TEXT_AREA)
    d.key("ctrl+a", "Delete")
    d.type("if a=b then msgbox fenetre.caption\nx=1")
    time.sleep(0.5)
    after = d.screenshot()
    left, top, width, height = editor.geometry()
    changed = sum(1 for y in range(top + 40, top + height, 2) for x in range(left, left + width, 2)
                  if before.pixel(x, y) != after.pixel(x, y))
    need(changed > 50, "typing into the hover script left its text area as it was")
    # The assistant's first statement, a message, on a line of its own; its
    # prompts answered by typing.
    d.key("Return")
    editor.click(*SCRIPT_EDITOR["Assistant"])
    time.sleep(0.4)
    d.key("Down", "Return")
    answer_each(d, "^Bo[iî]te de dialogue", 4, 3, lambda: (d.type("Bonjour"), d.key("Return")))
    e.close_window(editor)

    # The timer's and the global slots, from the window's panel scrolled down.
    e.panel.click(*PANEL_SELECTOR)
    time.sleep(0.3)
    d.key("Home", "Return")
    _, _, width, height = e.panel.geometry()
    for _ in range(8):
        e.panel.click(width - 7, height - 10)
    e.panel.click(*PANEL_SCROLLED["Minuteur"])
    for button, caption, typed in ((PANEL_SCROLLED["timer Modif."], "^Code VBS du minuteur$", "y=2\n"),
                                   (PANEL_SCROLLED["global Modif."], "^Code VBS",
                                    "dim zz\nsub aa\nend sub\nsub bb\nend sub")):
        e.panel.click(*button)
        editor = d.window(caption)
        editor.click(*SCRIPT_TEXT_AREA)
        d.key("ctrl+a", "Delete")
        d.type(typed)
        time.sleep(0.3)
        if "sub bb" in typed:
            # The second procedure picked from the list: the caret goes to
            # its declaration, where a line is then typed (checked below).
            _, _, width, _ = editor.geometry()
            editor.click(width - SCRIPT_PROCEDURES_FROM_RIGHT[0], SCRIPT_PROCEDURES_FROM_RIGHT[1])
            time.sleep(0.4)
            d.key("Down", "Down", "Return")
            time.sleep(0.3)
            d.type("zz=3\n")
            time.sleep(0.3)
        e.close_window(editor)

    lines = e.save_as("scripts.qor")
    hover = button_block(lines, 1)[7].split("¤")
    need(hover[:2] == ["if a = b then MsgBox fenetre.Caption", "x = 1"],
         "the hover script was saved as %r, not formatted as typed" % hover)
    need(any("Bonjour" in line for line in hover[2:]),
         "the assistant's message is not in the hover script %r" % hover)
    need("y = 2¤" in lines, "the timer's slot was not saved as \"y = 2\" (typed, then formatted by Enter)")
    globals_ = [line.split("¤") for line in lines if line.startswith("Dim zz¤")]
    need(globals_, "no global slot starting with \"Dim zz\" was saved")
    script = [line.strip().lower() for line in globals_[0]]
    need("sub bb" in script, "the global slot %r lost its second procedure" % globals_[0])
    at = script.index("sub bb")
    need(script[at - 1] == "zz = 3" and script[:3] == ["dim zz", "sub aa", "end sub"],
         "the line typed after picking \"bb\" from the procedure list is not right above its "
         "declaration: the global slot was saved as %r" % globals_[0])


# --- looks ------------------------------------------------------------------

def looks(d, captions=FRENCH):
    e = Editor(d, captions=captions)
    panel_window = {**PANEL_WINDOW, **captions.get("window panel", {})}
    for name in ("Par défaut", "Sombre"):
        if name != "Par défaut":
            choose_appearance(e, name)
        left, top, _, _ = e.panel.geometry()

        def seen():
            # The panel as it shows now; a busy machine may still be repainting it.
            shot = d.screenshot()
            back = shot.commonest((left, top, 60, 40))
            if name == "Sombre" and distance(back, SOMBRE_WINDOW) > 2:
                return "the properties panel shows %s, not the window colour of %s" % (back, name)
            swatch = shot.commonest(rect_at(left, top, panel_window["Couleur de fond"], 10, 6))
            if swatch != WHITE:
                return "under %s the \"Couleur de fond :\" swatch shows %s, not the project's white" % (
                    name, swatch)
            return ""
        last = [""]

        def right():
            last[0] = seen()
            return not last[0]
        try:
            d.wait(right, "the panel under " + name, limit=10)
        except JourneyFailed:
            raise JourneyFailed(last[0])

        # The timer's "Modif." cannot be used until "Minuteur" is ticked: its
        # text must change when it can.
        def timer_ink():
            return d.screenshot().ink(rect_at(left, top, panel_window["timer Modif."]))
        disabled = timer_ink()
        e.panel.click(*panel_window["Minuteur"])
        d.wait(lambda: distance(timer_ink(), disabled) > 40,
               "under %s the timer's \"Modif.\" to look usable once \"Minuteur\" is ticked (its text %s "
               "stays as it was while disabled)" % (name, disabled), limit=10)
        e.panel.click(*panel_window["Minuteur"])
        d.wait(lambda: distance(timer_ink(), disabled) <= 8, "the timer's \"Modif.\" to look disabled again",
               limit=10)
        d.keep_screenshot("looks-" + name)
    # A message given no title shows none: "Sauver" with no name.
    e.menu("o", "a")
    d.wait(lambda: e.main.geometry()[3] > 200, "the appearance editor to open")
    def untitled():
        # The editor's own windows (its X class), those without a caption.
        out = d.xdotool("search", "--onlyvisible", "--class", "^qor$", check=False)
        return {w for w in out.split() if d.caption(w) == ""}
    others = untitled()
    e.main.click(*APPEARANCE["Sauver"])
    message = d.wait(lambda: untitled() - others, "the \"Champs nom vide !!!\" message, with an empty title").pop()
    box = Window(d, message, "")
    _, _, width, height = box.geometry()
    box.click(width - 54, height - 24)   # "OK"
    d.wait(lambda: message not in untitled(), "the untitled message to close")
    e.main.click(*APPEARANCE["Fermer"])
    # Notes typed, then the dialog left with Escape: they must not come back.
    e.menu("f", *(["Down"] * 6), "Return")
    info = d.window(captions["properties"])
    info.click(*INFO_NOTES)
    d.type("oublié ")
    escape_from(d, captions["properties"])
    e.menu("f", *(["Down"] * 6), "Return")
    info = d.window(captions["properties"])
    shot = d.screenshot()
    left, top, _, _ = info.geometry()
    # Under "Sombre": what cannot be edited on the window's colour, the notes on the fields'.
    for where, wanted, what in ((INFO_EDITOR, SOMBRE_WINDOW, "the read-only \"Editeur :\""),
                                (INFO_NOTES, SOMBRE_FIELD, "\"Notes :\"")):
        seen = shot.commonest(rect_at(left, top, where, 20, 4))
        need(distance(seen, wanted) <= 2, "%s field shows %s, not %s" % (what, seen, wanted))
    info.click(*INFO_NOTES)
    d.type("vu sous Sombre")
    info.click(*INFO_VALIDER)
    d.gone(info)
    # "Enregistrer" left with Escape writes nothing and keeps the editor going.
    e.menu("f", "s")
    escape_from(d, captions["save"])
    need(os.listdir(d.files) == [], "the save dialog left with Escape wrote %r" % os.listdir(d.files))
    lines = e.save_as("looks.qor")
    notes = section(lines, "[Auteur]")[3]
    need(notes == "vu sous Sombre", "the notes typed were saved as %r" % notes)


def looks_in_english(d):
    """The same journey with English chosen in the user's settings."""
    settings = os.path.join(d.home, ".config", "QOR")
    os.makedirs(settings)
    with open(os.path.join(settings, "QOR.ini"), "w") as f:
        f.write("[General]\nlangue=English\n")
    looks(d, ENGLISH)


def rect_at(left, top, centre, half_width=14, half_height=5):
    return (left + centre[0] - half_width, top + centre[1] - half_height, 2 * half_width, 2 * half_height)


def choose_appearance(e, name):
    e.menu("o", "a")
    e.d.wait(lambda: e.main.geometry()[3] > 200, "the appearance editor to open")
    e.main.click(*APPEARANCE["list"])
    time.sleep(0.3)
    e.d.key(name[0], "Return")
    time.sleep(0.3)
    e.main.click(*APPEARANCE["Charger"])
    time.sleep(0.5)
    e.main.click(*APPEARANCE["Fermer"])
    e.d.wait(lambda: e.main.geometry()[3] < 100, "the appearance editor to close")


# --- shape ------------------------------------------------------------------

def shape(d):
    e = Editor(d)
    sheet_left, sheet_top, _, _ = e.sheet.geometry()
    e.tool("Editeur")
    panel = d.window("^Forme$")

    def preview_ink():
        left, top, _, _ = panel.geometry()
        return d.screenshot().ink(rect_at(left, top, SHAPE_PANEL["Aperçu"], 20, 5))
    closed_before = preview_ink()
    corners = [(100, 80), (500, 120), (260, 400)]
    for x, y in corners:
        d.click_at(sheet_left + x, sheet_top + y)
        time.sleep(0.15)
    d.click_at(sheet_left + 300, sheet_top + 300, button=3)
    d.wait(lambda: distance(preview_ink(), closed_before) > 40,
           "\"Aperçu\" to look usable once the triangle is closed")
    panel.click(*SHAPE_PANEL["Aperçu"])
    # The preview cuts the surface to the triangle: inside stays, outside goes.
    inside = (sheet_left + 287, sheet_top + 200)
    outside = (sheet_left + 600, sheet_top + 450)
    d.wait(lambda: d.screenshot().pixel(*outside) != d.screenshot().pixel(*inside),
           "the preview to cut the surface to the triangle")
    d.keep_screenshot("shape-preview")
    panel.click(*SHAPE_PANEL["Valider"])
    d.gone(panel)
    lines = e.save_as("shape.qor")
    block = section(lines, "[FormeMenu]")
    points = [line for line in block if line.startswith(("X=", "Y="))]
    wanted = [f"{axis}={value * 15}" for x, y in corners + corners[:1] for axis, value in (("X", x), ("Y", y))]
    need(points == wanted, "the shape block holds %r, not the triangle clicked %r" % (points, wanted))


# --- build and run ------------------------------------------------------------

COMPILE = {"folder": (215, 97), "no runtime": (17, 209), "Valider": (260, 344)}
RED = (255, 0, 0)


def build_and_run(d):
    e = Editor(d)
    pictures = colours_of(d)
    e.tool("Quitter")
    e.images(pictures["rouge"], pictures["vert"], pictures["bleu"])
    # "Créer" > "Compiler/Créer" > "En autorun (pour vos CDs)".
    e.menu("c", "c", "Return")
    dialog = d.window("^Création pour graver$")
    target = d.file("cd") + "/"
    os.makedirs(target)
    dialog.click(*COMPILE["folder"])
    d.key("ctrl+a")
    d.type(target)
    dialog.click(*COMPILE["no runtime"])
    dialog.click(*COMPILE["Valider"])
    d.wait_for_file(os.path.join(target, "qor", "autorun.exe"), "the compiled player in " + target)
    need(any(name.lower() == "autorun.inf" for name in os.listdir(target)),
         "the compilation wrote no autorun.inf in " + target)
    # Left with Escape once the compilation is done, as any other dialog.
    escape_from(d, "^Création pour graver$")

    # F5 on the worksheet: the player shows the menu, the editor waits.
    before = set(d.window_ids("."))
    e.sheet.activate()
    d.key("F5")
    watcher = d.window("^QOR$")

    def player():
        for wid in d.window_ids("."):
            if wid not in before and wid != watcher.wid:
                shot = d.screenshot()
                left, top, width, height = Window(d, wid, d.caption(wid)).geometry()
                if shot.count((left, top, width, height), RED, 8) > 500:
                    return Window(d, wid, d.caption(wid))
        return None
    menu = d.wait(player, "the player's window showing the red quit button")
    d.keep_screenshot("player")
    shot = d.screenshot()
    left, top, width, height = menu.geometry()
    reds = [(x, y) for y in range(top, top + height) for x in range(left, left + width)
            if distance(shot.pixel(x, y), RED) <= 8]
    need(len(reds) >= 60 * 24 * 0.9, "the player shows %d red pixels of the 60 x 24 button" % len(reds))
    x = sum(p[0] for p in reds) // len(reds)
    y = sum(p[1] for p in reds) // len(reds)
    d.click_at(x, y)
    d.gone(menu)
    d.gone(watcher)
    d.wait(lambda: "IsViewable" in d.run(["xwininfo", "-id", e.sheet.wid], check=False),
           "the worksheet to come back after the test run")
    lines = e.save_as("built.qor")
    need(button_block(lines, 1)[5] == "quitter", "the saved button is not the quit button")


# --- wizard -----------------------------------------------------------------

WIZARD = {"name": (566, 114), "Ajouter": (220, 229), "Texte": (447, 122), "text": (667, 149),
          "Valider": (644, 231), "first button": (222, 111), "Quitter le menu": (450, 254)}


def wizard(d):
    e = Editor(d)
    # Escape on the question before the wizard: no wizard, and asked again.
    e.menu("f", "n", "a")
    escape_from(d, "^Enregistrement$")
    try:
        d.window("^Assistant création$", limit=2)
    except JourneyFailed:
        pass
    else:
        raise JourneyFailed("the wizard opened although its question was left with Escape")
    e.menu("f", "n", "a")
    e.question("Enregistrement", "Non")
    wz = d.window("^Assistant création$")
    _, _, width, height = wz.geometry()
    next_step = (width - 224, height - 23)
    finish = (width - 137, height - 23)

    def ink(at):
        shot = d.screenshot()
        left, top, _, _ = wz.geometry()
        return shot.ink(rect_at(left, top, at, 20, 5))
    # "Terminer" cannot be used before the last step, and shows it.
    need(distance(ink(next_step), ink(finish)) > 40,
         "\"Terminer\" of the first step looks like the enabled \"Suivant >\"")
    wz.click(*WIZARD["name"])
    d.key("ctrl+a")
    d.type("Mon menu")
    wz.click(*next_step)
    wz.click(*next_step)
    # "Etape 3": one text button.
    wz.click(*WIZARD["Ajouter"])
    wz.click(*WIZARD["Texte"])
    wz.click(*WIZARD["text"])
    d.type("Sortie")
    wz.click(*WIZARD["Valider"])
    wz.click(*next_step)
    # "Etape 4": the button quits the menu.
    wz.click(*WIZARD["first button"])
    wz.click(*WIZARD["Quitter le menu"])
    wz.click(*next_step)
    time.sleep(0.3)
    need(distance(ink(next_step), ink(finish)) > 40,
         "on the last step \"Suivant >\" looks like the enabled \"Terminer\"")
    folder = os.path.join(d.home, "Documents")
    os.makedirs(folder, exist_ok=True)
    wz.click(*finish)
    d.gone(wz)
    e.message("Assistant création")
    need(os.path.isfile(os.path.join(folder, "Mon menu", "Mon menu.qor")),
         "the wizard wrote no \"Mon menu.qor\" in " + folder)
    # The finished menu opens on the worksheet: its text button shows there.
    left, top, width, height = e.sheet.geometry()
    drawn = d.screenshot().count((left, top, width // 2, height // 4), (0, 0, 0), 100)
    need(drawn > 20, "the worksheet shows no button after the wizard (%d dark pixels)" % drawn)
    lines = e.save_as("wizard.qor")
    button = button_block(lines, 1)
    need(button[5] == "quitter", "the wizard's button was saved as %r, not a quit button" % button[5])
    need(button[2].endswith("bouton1_normal.bmp"), "the wizard's button image is %r" % button[2])


# --- a menu from nothing ---------------------------------------------------------

PANEL_WINDOW_BROWSE_BACKGROUND = (141, 58)
PANEL_TEXT = {"Couleur de fond": (115, 45), "Couleur du texte": (115, 73), "Modif. police": (128, 101)}
COLOUR_DIALOG = "^Select Colou?r|^Sélectionner une couleur|^Couleur"
FONT_DIALOG = "^Choisir une police|^Sélectionner|^Police|^Select Font"


def escape_from(d, caption):
    """A dialog left with Escape, as a person changes their mind."""
    dialog = d.window(caption)
    dialog.activate()
    d.key("Escape")
    d.gone(dialog)


def escape_prompt(d, open_it):
    """The untitled prompt that open_it brings up, left with Escape: none may follow it."""
    def active():
        wid = d.xdotool("getactivewindow", check=False).strip()
        return wid if wid.isdigit() else None
    before = set(d.window_ids(".")) | {active()}
    open_it()
    prompt = d.wait(lambda: active() not in before and active(), "a prompt to open")
    prompt = Window(d, prompt, d.caption(prompt))
    d.key("Escape")
    d.gone(prompt)
    time.sleep(0.5)
    need(active() in before, "another prompt came after the first was left with Escape")


def pick_colour(d, html):
    """The colour dialog answered by typing into its HTML field."""
    dialog = d.window(COLOUR_DIALOG)
    dialog.activate()
    d.key("alt+h", "ctrl+a")
    d.type(html)
    d.key("Return")
    d.gone(dialog)


def vb_colour(html):
    """#rrggbb as the project file writes a colour: blue, green, red from the top byte down."""
    red, green, blue = (int(html[i:i + 2], 16) for i in (1, 3, 5))
    return blue << 16 | green << 8 | red
PANEL_BUTTON_TRANSPARENT = (23, 334)


def menu_from_nothing(d):
    e = Editor(d)
    pictures = colours_of(d)
    background = write_bmp(d.file("fond.bmp"), 200, 150, (255, 230, 0))
    left, top, _, _ = e.sheet.geometry()

    e.tool("Multimédia")
    e.images(pictures["rouge"], pictures["vert"], pictures["bleu"])
    # Shift + drag: the button goes where it is let go, grab point kept.
    d.drag((left + 40, top + 25), (left + 400, top + 300), modifier="shift")
    # The background picture, from the window's panel.
    e.panel.click(*PANEL_SELECTOR)
    time.sleep(0.3)
    d.key("Home", "Return")
    time.sleep(0.3)
    e.panel.click(*PANEL_WINDOW_BROWSE_BACKGROUND)
    d.answer_file_dialog("^Image de fond", background)
    d.wait(lambda: distance(d.screenshot().pixel(left + 600, top + 500), (255, 230, 0)) <= 8,
           "the background picture on the worksheet")
    # Asked again and left with Escape: the picture stays (checked in the file).
    e.panel.click(*PANEL_WINDOW_BROWSE_BACKGROUND)
    escape_from(d, "^Image de fond")

    # A text box, typed into where it stands.
    e.tool("Créer")
    e.sheet.click(100, 60)
    d.key("ctrl+a")
    d.type("Bienvenue sur le CD")
    before_font = section(e.save_as("avant.qor"), "[Texte]")
    e.sheet.click(100, 60)
    time.sleep(0.3)
    e.panel.click(*PANEL_TEXT["Modif. police"])
    font = d.window(FONT_DIALOG)
    font.activate()
    d.key("Return")
    d.gone(font)
    e.panel.click(*PANEL_TEXT["Modif. police"])
    escape_from(d, FONT_DIALOG)
    # Its colours through the colour dialog, then each dialog opened again
    # and left with Escape: the colours chosen stay.
    colours = {"Couleur de fond": "#c0ffee", "Couleur du texte": "#123456"}
    for swatch, html in colours.items():
        e.panel.click(*PANEL_TEXT[swatch])
        pick_colour(d, html)
    for swatch in colours:
        e.panel.click(*PANEL_TEXT[swatch])
        escape_from(d, COLOUR_DIALOG)

    # A second button, deleted again with the Delete key.
    e.tool("Quitter")
    e.images(pictures["rouge"], pictures["vert"], pictures["bleu"])
    e.sheet.click(40, 25)
    time.sleep(0.3)
    d.key("Delete")
    # Escape first: the button stays selected, so Delete asks again.
    escape_from(d, "^Suppression$")
    d.key("Delete")
    e.question("Suppression", "Oui", buttons=("Oui", "Non"))

    # The first button made transparent.
    e.sheet.click(400, 300)
    time.sleep(0.3)
    e.panel.click(*PANEL_BUTTON_TRANSPARENT)
    time.sleep(0.3)

    lines = e.save_as("menu.qor")
    general = section(lines, "[Général]")
    need(general[0].endswith("fond.bmp"), "the background picture was saved as %r" % general[0])
    text = section(lines, "[Texte]")
    need(text[0] == "Bienvenue sur le CD", "the text box was saved as %r" % text[0])
    need(text[3:] == before_font[3:], "a font dialog confirmed unchanged, or left with Escape, changed the text "
         "box: %r became %r" % (before_font[3:], text[3:]))
    saved = [int(value) for value in text[1:3]]
    need(saved == [vb_colour(html) for html in colours.values()],
         "the text box's colours chosen as %r were saved as %r" % (list(colours.values()), saved))
    buttons = [i for i, line in enumerate(lines) if line == "[Bouton]"]
    need(len(buttons) == 1, "%d buttons saved, not the one left after the deletion" % len(buttons))
    button = button_block(lines, 1)
    moved = (float(button[0]), float(button[1]))
    need(abs(moved[0] - 373 * 15) <= 30 and abs(moved[1] - 288 * 15) <= 30,
         "the dragged button was saved at %r twips" % (moved,))
    need(button[8].strip() == "1", "the button made transparent was saved with %r" % button[8])


# --- rough hands -------------------------------------------------------------------

def rough_hands(d):
    """Keys and clicks a person really makes: none may crash, hang or lose the project."""
    e = Editor(d)
    d.type("zz")   # typed while the windows are still settling
    pictures = colours_of(d)
    # A double click on the toolbox, then Escape in the dialog it opened.
    left, top, _, _ = e.toolbox.geometry()
    d.click_at(left + TOOLBOX["Quitter"][0], top + TOOLBOX["Quitter"][1], double=True)
    d.window("^Image normale")
    # Escape in each image dialog, as many as the clicks opened.
    answer_each(d, "^Image ", 8, 2, lambda: d.key("Escape"))
    e.tool("Code VBS")
    d.type("zz")   # typed while the image dialog opens
    e.images(pictures["rouge"], pictures["vert"], pictures["bleu"])
    # Its position prompt left with Escape: the button stays where it was made.
    escape_prompt(d, lambda: e.panel.click(*PANEL_BUTTON["Modifier la position"]))
    # Closed while the formatter waits to run on the line just ended.
    e.panel.click(*PANEL_BUTTON["Actions au survol"])
    editor = d.window(r"^Actions au survol du bouton [0-9]+$")
    editor.click(*SCRIPT_TEXT_AREA)
    d.key("ctrl+a", "Delete")
    d.type("msgbox 1\n")
    editor.activate()
    d.key("alt+F4")
    d.gone(editor)
    # 60 000 characters and more, pasted: one line copied and pasted onto itself.
    e.panel.click(*PANEL_BUTTON["Actions au survol"])
    editor = d.window(r"^Actions au survol du bouton [0-9]+$")
    editor.click(*SCRIPT_TEXT_AREA)
    d.key("ctrl+End")
    d.type("\n" + "x" * 58)
    for _ in range(10):
        d.key("ctrl+a", "ctrl+c", "ctrl+End", "ctrl+v")
    d.wait(lambda: editor.exists(), "the script editor to stay after the paste")
    e.close_window(editor)
    # A new button whose three image dialogs are left with Escape takes the
    # pictures the panel still shows, those of the button shown last.
    e.tool("Multimédia")
    for caption in ("^Image normale", "^Image au survol", "^Image clique"):
        escape_from(d, caption)
    # That button, on top, dragged off the worksheet.
    left, top, width, _ = e.sheet.geometry()
    d.drag((left + 30, top + 20), (left + width + 60, top + 40), modifier="shift")
    lines = e.save_as("rough.qor")
    count = sum(line == "[Bouton]" for line in lines)
    blocks = [button_block(lines, n) for n in range(1, count + 1)]
    # The buttons of the double click had no picture to take: none is saved.
    need([b[5] for b in blocks] == ["code", "vidéo"], "the saved buttons are of kinds %r" % [b[5] for b in blocks])
    code, video = blocks
    need(video[2:5] == code[2:5] and all(code[2:5]),
         "the button made with every image dialog escaped was saved with pictures %r, not %r" % (video[2:5], code[2:5]))
    need([float(v) for v in code[:2]] == [200, 200], "the button whose position prompt was left with Escape was "
         "saved at %r twips" % code[:2])
    hover = code[7]
    need(hover.startswith("MsgBox 1¤"), "the line typed before closing was saved as %r" % hover[:40])
    need(len(hover) >= 60000, "the pasted script was saved with %d characters" % len(hover))


JOURNEYS = {
    "rough_hands": rough_hands,
    "menu_from_nothing": menu_from_nothing,
    "wizard": wizard,
    "build_and_run": build_and_run,
    "scripts": scripts,
    "looks": looks,
    "looks_in_english": looks_in_english,
    "shape": shape,
}
