// Keys of the page as the codes that the machine knows.

const byCode = {
  Space: 32, Enter: 13, NumpadEnter: 13, F1: 112, Backquote: 192, KeyC: 67,
  Digit0: 48, Digit1: 49, Digit2: 50, Digit3: 51,
  Numpad0: 96, Numpad1: 97, Numpad2: 98, Numpad3: 99,
};

// 0 where the machine has no use for the key.
export function machineKey(event) {
  if (event.ctrlKey || event.altKey || event.metaKey || event.repeat) return 0;
  if (event.key === "c" || event.key === "C") return 67;
  if (event.code === "KeyC" && event.key.length === 1) return 0; // another letter on this keyboard
  if (/^[0-3]$/.test(event.key)) return (event.code.startsWith("Numpad") ? 96 : 48) + Number(event.key);
  return byCode[event.code] ?? 0;
}
