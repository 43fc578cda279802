#!/usr/bin/env python3
"""serve.py FOLDER [PORT]: serves the page's folder on 127.0.0.1 and prints its address."""
import functools
import http.server
import sys


class Pages(http.server.SimpleHTTPRequestHandler):
    extensions_map = {**http.server.SimpleHTTPRequestHandler.extensions_map, ".wasm": "application/wasm",
                      ".webmanifest": "application/manifest+json", ".pack": "application/octet-stream",
                      ".opus": "audio/ogg"}

    def end_headers(self):
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_):
        pass


def server(folder, ports):
    for port in ports:
        try:
            return http.server.ThreadingHTTPServer(("127.0.0.1", port),
                                                   functools.partial(Pages, directory=folder))
        except OSError:
            continue
    sys.exit(f"no free port in {ports}")


if __name__ == "__main__":
    given = sys.argv[2] if len(sys.argv) > 2 else ""
    serving = server(sys.argv[1], [int(given)] if given else range(8017, 8050))
    print(f"Hoard Hustle is at  http://127.0.0.1:{serving.server_port}/   (Ctrl+C ends it)", flush=True)
    try:
        serving.serve_forever()
    except KeyboardInterrupt:
        pass
