// What ships with the page: in the page itself, or beside it.

async function bytesOf(stream) {
  return new Response(stream).arrayBuffer();
}

// The bytes of a part of the page, by its name.
export async function asset(name) {
  const inside = document.getElementById(name);
  if (!inside) return (await fetch(name)).arrayBuffer();
  const coded = atob(inside.textContent);
  const bytes = new Uint8Array(coded.length);
  for (let i = 0; i < coded.length; i += 1) bytes[i] = coded.charCodeAt(i);
  inside.remove();
  if (inside.dataset.packed !== "gzip") return bytes.buffer;
  return bytesOf(new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip")));
}

// The waves of a pack by name: a line of JSON that tells names and lengths, then all of them.
export function wavesOf(pack) {
  const bytes = new Uint8Array(pack);
  const end = bytes.indexOf(10);
  let at = end + 1;
  return JSON.parse(new TextDecoder().decode(bytes.subarray(0, end))).map(([name, length]) => {
    const wave = pack.slice(at, at + length);
    at += length;
    return [name, wave];
  });
}
