#!/usr/bin/env python3
"""What the page keeps: saving, damaged and full stores, files both ways, and offline."""
import pathlib
import sys
import tempfile
import threading

from browser import APP, ROOT, Browser, main, play_script

sys.path.insert(0, str(ROOT / "web"))
import serve  # noqa: E402  pylint: disable=wrong-import-position

GAME = "localStorage.getItem('hoardhustle/game.dat')"


def play_once(b):
    """Presses Start; a part of the stake goes to the streak bank at once, whatever the reels bring."""
    before = b.get("streakbank")
    b.until("hustle.get('main.loaded') && hustle.get('main.start.enabled')")
    b.key(" ", "Space", 32)
    b.until(f"hustle.get('streakbank') !== {before}")


def saves():
    """The ledgers outlive the page; a damaged file is set aside and told."""
    with Browser() as b:
        b.start_as_player()
        play_once(b)
        money = b.get("streakbank")
        b.until(f"Number(({GAME} ?? '').split('\\r\\n')[5]) === {money}")
        b.driver.get("about:blank")
        b.open()  # asked about flashing once, and no more
        b.ready()
        assert abs(b.get("streakbank") - money) < 0.001 and money > 0
        b.run("Storage.prototype.setItem.call(localStorage, 'hoardhustle/game.dat', 'nonsense');"
              "Storage.prototype.setItem = () => {}")
        b.open("?seed=5")
        b.until("document.querySelector('dialog[open]')?.textContent.includes('damaged') === true")
        b.answer("ok")
        b.ready()
        assert b.get("streakbank") == 0
        assert b.value("localStorage.getItem('hoardhustle/game.dat.damaged')") == "nonsense"


def full():
    """A store that takes nothing is told, and the machine plays."""
    with Browser() as b:
        b.command("Page.addScriptToEvaluateOnNewDocument", source="Storage.prototype.setItem = () => {"
                  "throw new DOMException('full', 'QuotaExceededError'); }")
        b.open()
        b.answer("asitis")
        b.until("document.querySelector('dialog[open]')?.textContent.includes('keeps nothing') === true")
        b.answer("ok")
        b.ready()
        play_once(b)


def files():
    """From the desktop to the browser and back, with the very same text; the session replays."""
    first = play_script("seed 9\npress main.start\nrun 9000\nclose main\nget file.game.dat file.hscore.dat\n")
    texts = {}
    for line in first.splitlines():
        name, text = line.split(" = ", 1)
        texts[name.removeprefix("file.")] = text[1:-1].replace("\\r", "\r").replace("\\n", "\n").replace('\\"', '"')
    with Browser() as b, tempfile.TemporaryDirectory() as folder:
        b.start_as_player("?seed=5")
        for name, text in texts.items():
            pathlib.Path(folder, name).write_bytes(text.encode())
        b.driver.find_element("css selector", "#files").send_keys(
            "\n".join(str(pathlib.Path(folder, name)) for name in texts))
        b.run("window.old = true")
        b.answer("yes")
        b.until("window.old === undefined && document.documentElement.dataset.ready === 'true'")
        assert b.value(GAME) == texts["game.dat"], "the very same text"
        b.until("hustle.get('main.loaded')")
        play_once(b)
        b.command("Browser.setDownloadBehavior", behavior="allow", downloadPath=folder + "/down", eventsEnabled=True)
        state, session, game = b.value("[hustle.hash(), hustle.session(), hustle.get('moneyin')]")
        assert play_script(session).split()[-1] == state, "the session replays to the same state"
        b.at("menu.Files").click()
        b.at("page.savegame").click()
        down = pathlib.Path(folder, "down", "game.dat")
        while not down.exists():  # ctest ends a test that waits in vain
            b.value("1")
        back = down.read_bytes().decode()
        lines = "".join(line + "\n" for line in back.split("\r\n")[:-1])
        found = play_script(f"file game.dat\n{lines}end\nget moneyin\n")
        assert abs(float(found.split()[-1]) - game) < 0.6


def dollars():
    """Dollars, once chosen and the machine started anew, stand on the art; amounts are the language's own."""
    shown = """
      const image = document.querySelector('[data-element="main.transfer"] img');
      const canvas = document.createElement("canvas");
      [canvas.width, canvas.height] = [80, 80];
      await image.decode();
      canvas.getContext("2d").drawImage(image, 0, 0, 80, 80);
      return canvas.toDataURL();"""
    with Browser("de-AT") as b:
        def transfer():
            b.open("?seed=5")
            b.ready()
            b.until("hustle.get('main.loaded')")
            return b.driver.execute_async_script(f"(async () => {{{shown}}})().then(arguments[0])")

        pounds = transfer()
        b.run("hustle.press('main.gstat')")
        b.until("hustle.get('statistics.moneyin.text') === ' \u20ac\u00a0100,00'")
        b.run("hustle.close('statistics'); hustle.press('main.ds')")
        b.answer("ok")
        b.until(f"({GAME} ?? '').includes('usd')")
        assert pounds != transfer(), "the transfer button bears a dollar"


def tabs():
    """Two tabs of the one file do not overwrite each other, by the browser's locks and without them."""
    for without in ("", "Object.defineProperty(navigator, 'locks', {value: undefined});"):
        with Browser() as b:
            def tab(answer, without=without, b=b):
                if b.value("location.protocol") == "file:":
                    b.driver.switch_to.new_window("tab")
                b.command("Page.addScriptToEvaluateOnNewDocument", source=without)
                b.open()
                b.answer(answer)
                b.ready()
                b.until("hustle.get('main.loaded')")
                return b.driver.current_window_handle

            def plays():
                play_once(b)
                return b.get("streakbank")

            def stands(money):
                b.until(f"Number(({GAME} ?? '').split('\\r\\n')[5]) === {money}")

            first = tab("asitis")
            one = plays()
            stands(one)
            tab("without")
            plays()
            stands(one)
            b.driver.get("about:blank")
            second = tab("bring")
            assert b.get("streakbank") == one, "the second tab has what the first one saved"
            two = plays()
            stands(two)
            b.driver.switch_to.window(first)
            b.until("document.querySelector('dialog[open]')?.textContent.includes('another tab') === true")
            b.driver.get("about:blank")
            b.driver.switch_to.window(second)
            # The second one may have saved the end of its play meanwhile; its stakes stand.
            assert b.value(f"Number({GAME}.split('\\r\\n')[5])") == two, "the first tab writes no more"


def offline():
    """The folder on a web server: once seen it plays with the server gone."""
    serving = serve.server(str(APP), [0])
    threading.Thread(target=serving.serve_forever, daemon=True).start()
    page = f"http://127.0.0.1:{serving.server_port}/"
    with Browser() as b:
        b.start_as_player(page=page)
        b.driver.execute_async_script("navigator.serviceWorker.ready.then(arguments[0])")
        manifest = b.command("Page.getAppManifest")
        assert manifest["errors"] == [] and "Hoard Hustle" in manifest["data"]
        b.until("navigator.serviceWorker.controller !== null")
        serving.shutdown()
        serving.server_close()
        b.open(page=page)
        b.ready()
        b.until("hustle.get('main.loaded')")
        play_once(b)


if __name__ == "__main__":
    main({f.__name__: f for f in (saves, full, files, dollars, tabs, offline)})
