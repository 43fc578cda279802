#!/usr/bin/env python3
"""bundle.py PAGE HELP SHOTS REPORT ASSETS OUT: makes the two forms of the page.

OUT/hoardhustle.html has everything in it and fetches nothing. OUT/app is a folder for a web server:
the same page with its parts beside it, a manifest and a service worker, so that it installs and
plays offline. PAGE is the folder of modules and styles, HELP that of the help pages, SHOTS
that of the scripts of their pictures, REPORT that of
the lab's charts, ASSETS that of the modules, the sounds and the icons.
"""
import base64
import gzip
import hashlib
import json
import pathlib
import re
import shutil
import sys

PARTS = ["hustle.wasm", "lab.wasm", "waves.pack", "tune.opus"]


def joined(folder, name, done):
    """The module `name` and all that it imports, each in a scope of its own."""
    if name in done:
        return ""
    done.append(name)
    text = (folder / f"{name}.js").read_text()
    before = ""
    for wanted in re.findall(r'from "\./(\w+)\.js"', text):
        before += joined(folder, wanted, done)
    text = re.sub(r'^import (\{[^}]*\}) from "\./(\w+)\.js";$', r"const \1 = module_\2;", text, flags=re.M)
    exports = re.findall(r"^export (?:async )?(?:function|const) (\w+)", text, flags=re.M)
    text = re.sub(r"^export ", "", text, flags=re.M)
    if re.search(r"^(import|export)\b", text, flags=re.M):
        sys.exit(f"{name}.js: a form of import or export that is not known here")
    return f"{before}const module_{name} = (() => {{\n{text}\nreturn {{ {', '.join(exports)} }};\n}})();\n"


def script_of(folder, charts):
    return '"use strict";\n' + charts + joined(folder, "main", [])


def guide(path, shots):
    """The text of a help page, without its links to other pages. Of a picture its script goes along: the
    page plays it on a machine of its own, and draws what then stands there."""
    screens = {"panel": "main", "board": "feature"}

    def figure(found):
        tag = dict(re.findall(r'(\w+)="([^"]*)"', found.group(0)))
        name = pathlib.Path(tag["src"]).stem
        script = (shots / f"{name}.txt").read_text()
        return f'<div role="img" aria-label="{tag["alt"]}" data-shows="{screens[name]}">{script}</div>'

    body = re.search(r"<body>(.*)</body>", path.read_text(), flags=re.S).group(1)
    body = re.sub(r"<img [^>]*>", figure, body)
    return re.sub(r'<a href="(?!#)[^"]*">(.*?)</a>', r"\1", body, flags=re.S)


def sha(text):
    return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"


def packed(name, data):
    squeezed = gzip.compress(data, 9, mtime=0)
    how = ' data-packed="gzip"' if len(squeezed) < 0.95 * len(data) else ""
    text = base64.b64encode(squeezed if how else data).decode()
    return f'<script type="application/octet-stream" id="{name}"{how}>{text}</script>'


def filled(template, **parts):
    for key, text in parts.items():
        template = template.replace(f"@{key}@", text)
    return template


def write_single(page, common, style, script, assets, out):
    # default-src 'none' and no connect-src: the page can reach no network at all.
    policy = (f"default-src 'none'; script-src {sha(script)} 'wasm-unsafe-eval'; style-src {sha(style)}; "
              "img-src blob: data:; media-src blob:; worker-src blob:; base-uri 'none'; form-action 'none'")
    inside = "\n".join(packed(name, (assets / name).read_bytes()) for name in PARTS)
    text = filled(page, POLICY=policy, HEAD=common["icon"], STYLE=style, SCRIPT=script, ASSETS=inside,
                  **common["inside"])
    (out / "hoardhustle.html").write_text(text)


def write_app(page, common, style, script, assets, icons, out):
    app = out / "app"
    shutil.rmtree(app, ignore_errors=True)
    app.mkdir()
    register = 'if ("serviceWorker" in navigator) navigator.serviceWorker.register("worker.js");\n'
    script += register
    policy = (f"default-src 'none'; script-src {sha(script)} 'wasm-unsafe-eval'; style-src {sha(style)}; "
              "img-src 'self' blob: data:; media-src blob:; worker-src 'self' blob:; connect-src 'self'; "
              "manifest-src 'self'; base-uri 'none'; form-action 'none'")
    head = '<link rel="manifest" href="manifest.webmanifest">\n<link rel="icon" href="icon.svg">\n' \
           '<link rel="apple-touch-icon" href="icon-192.png">'
    text = filled(page, POLICY=policy, HEAD=head, STYLE=style, SCRIPT=script, ASSETS="", **common["inside"])
    (app / "index.html").write_text(text)
    for name in PARTS:
        shutil.copyfile(assets / name, app / name)
    for icon in icons:
        shutil.copyfile(icon, app / icon.name)
    manifest = {
        "name": "Hoard Hustle", "short_name": "Hoard Hustle", "lang": "en-GB", "dir": "ltr",
        "description": "A fruit machine to play. A simulation: no real money.",
        "id": "./", "start_url": "./", "scope": "./", "display": "standalone", "orientation": "any",
        "background_color": "#160d1e", "theme_color": "#160d1e", "categories": ["games"],
        "icons": [{"src": "icon-192.png", "sizes": "192x192", "type": "image/png"},
                  {"src": "icon-512.png", "sizes": "512x512", "type": "image/png"},
                  {"src": "icon-512.png", "sizes": "512x512", "type": "image/png", "purpose": "maskable"},
                  {"src": "icon.svg", "sizes": "any", "type": "image/svg+xml"}],
    }
    (app / "manifest.webmanifest").write_text(json.dumps(manifest, indent=1))
    files = sorted(p.name for p in app.iterdir())
    version = hashlib.sha256(b"".join((app / name).read_bytes() for name in files)).hexdigest()[:16]
    worker = (pathlib.Path(page_folder) / "worker.js.in").read_text()
    (app / "worker.js").write_text(filled(worker, VERSION=version, FILES=json.dumps(["./"] + files)))


if __name__ == "__main__":
    page_folder, help_folder, shots_folder, report_folder, assets_folder, out_folder = map(
        pathlib.Path, sys.argv[1:7])
    template = (page_folder / "index.html").read_text()
    style_text = (report_folder / "lab.css").read_text() + (page_folder / "style.css").read_text()
    script_text = script_of(page_folder, (report_folder / "lab.js").read_text())
    svg = (assets_folder / "icon.svg").read_bytes()
    shared = {
        "inside": {"HELP": guide(help_folder / "index.html", shots_folder),
                   "HOME": guide(help_folder / "home.html", shots_folder),
                   "LABWORKER": (page_folder / "labworker.js").read_text()},
        "icon": f'<link rel="icon" href="data:image/svg+xml;base64,{base64.b64encode(svg).decode()}">',
    }
    write_single(template, shared, style_text, script_text, assets_folder, out_folder)
    write_app(template, shared, style_text, script_text, assets_folder,
              [assets_folder / name for name in ("icon.svg", "icon-192.png", "icon-512.png")], out_folder)
