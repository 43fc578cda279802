// The menu bar: the machine's own menus from its sheet, and the page's two.

const make = (tag, className, text = "") => {
  const node = document.createElement(tag);
  node.className = className;
  node.textContent = text;
  return node;
};

export function makeMenus(machine, bar, { press, own }) {
  const { x, sheet } = machine;
  const entries = new Map(); // of the machine, by element
  const menus = [];
  let open = null;

  function shut(back = false) {
    if (!open) return;
    open.list.hidden = true;
    open.head.setAttribute("aria-expanded", "false");
    if (back) open.head.focus();
    open = null;
  }

  function show(menu, focusFirst) {
    shut();
    open = menu;
    if (menu.update) menu.update();
    menu.list.hidden = false;
    menu.head.setAttribute("aria-expanded", "true");
    if (focusFirst) items(menu)[0]?.focus();
  }

  const items = (menu) => [...menu.list.querySelectorAll("button:not([hidden])")];

  function addMenu(title) {
    const box = make("div", "menu");
    const head = make("button", "menuhead", title);
    head.type = "button";
    head.setAttribute("aria-haspopup", "menu");
    head.setAttribute("aria-expanded", "false");
    head.dataset.element = `menu.${title}`;
    const list = make("div", "menulist");
    list.setAttribute("role", "menu");
    list.setAttribute("aria-label", title);
    list.hidden = true;
    box.append(head, list);
    bar.append(box);
    const menu = { title, head, list };
    head.addEventListener("click", (event) => {
      if (open === menu) shut();
      else show(menu, event.detail === 0);
    });
    head.addEventListener("pointerenter", (event) => {
      if (open && open !== menu && event.pointerType === "mouse") show(menu, false);
    });
    box.addEventListener("keydown", (event) => move(menu, event));
    menus.push(menu);
    return menu;
  }

  function move(menu, event) {
    const all = items(menu);
    const at = all.indexOf(document.activeElement);
    const go = (n) => all[(n + all.length) % all.length]?.focus();
    const aside = (n) => {
      const next = menus[(menus.indexOf(menu) + n + menus.length) % menus.length];
      if (open) show(next, true);
      else next.head.focus();
    };
    const acts = {
      ArrowDown: () => (open === menu ? go(at + 1) : show(menu, true)),
      ArrowUp: () => open === menu && go(at - 1),
      ArrowRight: () => aside(1),
      ArrowLeft: () => aside(-1),
      Home: () => go(0),
      End: () => go(-1),
      Escape: () => shut(true),
      Tab: () => shut(),
    };
    if (acts[event.key]) {
      acts[event.key]();
      if (event.key !== "Tab") event.preventDefault();
    }
    event.stopPropagation(); // keys of a menu are none of the machine's
  }

  function addItem(menu, text, role, act) {
    const item = make("button", "item", text);
    item.type = "button";
    item.setAttribute("role", role);
    item.addEventListener("click", () => {
      shut();
      item.blur();
      act();
    });
    menu.list.append(item);
    return item;
  }

  function addLine(menu) {
    const line = make("div", "line");
    line.setAttribute("role", "separator");
    menu.list.append(line);
  }

  function refresh(id) {
    const item = entries.get(id);
    if (!item) return;
    const look = machine.look(id);
    item.hidden = look.visible === 0;
    item.setAttribute("aria-disabled", String(look.enabled === 0));
    if (item.getAttribute("role") === "menuitemradio") item.setAttribute("aria-checked", String(look.checked === 1));
  }

  const byTitle = new Map();
  for (const { menu: title, entry } of sheet.menus) {
    if (!byTitle.has(title)) byTitle.set(title, addMenu(title));
    const menu = byTitle.get(title);
    if (entry < 0) {
      addLine(menu);
      continue;
    }
    const role = title === "Options" ? "menuitemradio" : "menuitem";
    const item = addItem(menu, machine.text(x.hh_caption(entry)), role, () => press(entry));
    item.dataset.element = sheet.elements[entry].full;
    entries.set(entry, item);
  }
  for (const [title, list] of own) {
    const menu = addMenu(title);
    const ticks = [];
    for (const it of list) {
      if (it === null) {
        addLine(menu);
        continue;
      }
      const item = addItem(menu, it.text, it.checked ? "menuitemcheckbox" : "menuitem", it.act);
      item.dataset.element = `page.${it.name}`;
      if (it.checked) ticks.push(() => item.setAttribute("aria-checked", String(it.checked())));
    }
    menu.update = () => ticks.forEach((tick) => tick());
  }
  document.addEventListener("pointerdown", (event) => {
    if (open && !event.target.closest(".menu")) shut();
  }, true);
  bar.addEventListener("focusout", (event) => {
    if (open && event.relatedTarget && !event.relatedTarget.closest(".menu")) shut();
  });

  for (const id of entries.keys()) refresh(id);
  return {
    refresh,
    // A button at the bar's end that opens and shuts another room of the page.
    addTab(title, name, act) {
      const tab = make("button", "menuhead tab");
      tab.append(make("span", "", title));
      tab.type = "button";
      tab.dataset.element = name;
      tab.setAttribute("aria-pressed", "false");
      tab.addEventListener("click", act);
      bar.append(tab);
      return tab;
    },
  };
}
