#!/usr/bin/env python3
"""The lab in the page: the same figures as hustlelab's, and a run that stops when it is told to."""
import os
import re
import subprocess
import tempfile

from browser import ROOT, Browser, main

LAB = os.environ.get("HUSTLELAB", str(ROOT / "build/release/bin/hustlelab"))
RESTS = "!document.querySelector('[data-element=\"lab.policy\"]').disabled"


def by_hustlelab(**terms):
    """The figures of a run by the program, in the very text from which its report draws."""
    with tempfile.TemporaryDirectory() as folder:
        out = folder + "/run.json"
        words = [word for name, value in terms.items() for word in ("--" + name, str(value))]
        subprocess.run([LAB, "run", "--threads", "1", "--out", out, *words], check=True, capture_output=True)
        page = subprocess.run([LAB, "report", out], check=True, capture_output=True, text=True).stdout
    return re.search(r'id="lab-data">\[(.*?)\]</script>', page, flags=re.S).group(1)


def choose(b, **terms):
    for name, value in terms.items():
        b.run("const it = document.querySelector(`[data-element=\"lab.${arguments[0]}\"]`);"
              "it.value = [...(it.options ?? [])].find((o) => o.text === arguments[1])?.value ?? arguments[1];"
              "it.dispatchEvent(new Event('change'))", name, str(value))


def pays():
    """Bytes of the program's figures; a stop is obeyed; the player's machine stands and goes on."""
    with Browser() as b:
        b.start_as_player("?seed=3")
        b.at("page.pays").click()
        stood = b.value("hustle.now()")
        b.until("document.querySelector('[data-element=\"lab.policy\"]').options.length > 1")
        # Long enough that the first windows are whole and the ways home have ended.
        for terms in ({"policy": "starter", "machines": 1, "plays": 10000, "seed": 2**64 - 1, "reaction": 0},
                      {"policy": "gambler", "machines": 4, "plays": 1000, "seed": 7, "reaction": 150, "rung": 6}):
            choose(b, **{**terms, "plays": f"{terms['plays']:,}",
                         "reaction": f"{terms['reaction']} ms" if terms["reaction"] else "none"})
            b.at("lab.go").click()
            b.until(f"{RESTS} && hustle.pays().includes('\"complete\":true')")
            assert b.value("hustle.pays()") == by_hustlelab(**terms), terms
        assert b.value("document.querySelectorAll('[data-element=\"lab.charts\"] svg').length") >= 5
        choose(b, policy="expert", machines=16, plays="1,000,000")
        b.at("lab.go").click()
        b.until(f"!{RESTS} && JSON.parse(hustle.pays() || '{{}}').policy === 'expert'")
        b.at("lab.go").click()
        b.until(RESTS)
        result = "JSON.parse(hustle.pays())"
        assert b.value(f"!{result}.complete && {result}.plays_in_all > 0")
        b.key(" ", "Space", 32)
        assert b.value("hustle.now()") == stood and b.value("hustle.press('main.start')") is False
        b.at("page.pays").click()
        b.until(f"hustle.now() > {stood} && hustle.get('main.start.enabled')")
        b.key(" ", "Space", 32)
        b.until("hustle.get('credits') === 19")


if __name__ == "__main__":
    main({"pays": pays})
