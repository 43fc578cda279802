// One machine on the page's clock: what is due is delivered, inputs pass, and after each the page is
// brought into step. While a box stands open, a wait runs or the tab is hidden the clock stands.

export function makeSession(machine, { still, refresh }) {
  const { x } = machine;
  let held = 0; // boxes and waits that stand
  let hidden = false;
  let stoodSince = 0;
  let counted = 0; // of that time, what the machine has moved on by itself
  let alarm = 0;
  let running = false;
  const relay = new MessageChannel(); // a timer set from its message is not held back to 4 ms

  const real = () => Math.floor(performance.now());
  const stands = () => held > 0 || hidden;

  function stop() {
    if (!stands()) {
      stoodSince = real();
      counted = 0;
    }
  }
  function goOn() {
    if (!stands()) x.hh_fall_behind(real() - stoodSince - counted);
  }

  function arm() {
    clearTimeout(alarm);
    if (still || !running || stands() || x.hh_over()) return;
    const due = x.hh_next_due();
    if (due < 0) return;
    const left = Math.min(Math.max(due - x.hh_reading(real()), 0), 60000);
    alarm = setTimeout(() => relay.port2.postMessage(0), left);
  }

  // After a call: at once, or when its box has been answered.
  function follow(value) {
    refresh();
    arm();
    if (!(value instanceof Promise)) return value;
    return value.then((late) => {
      refresh();
      arm();
      return late;
    });
  }

  const deliver = () => machine.call("hh_run", x.hh_catch_up(real()));
  relay.port1.onmessage = () => {
    if (running && !stands()) follow(deliver());
  };

  return {
    still,
    start() {
      if (!still) x.hh_fall_behind(real() - x.hh_now());
      running = true;
      follow(0);
    },
    end() {
      running = false;
      clearTimeout(alarm);
    },
    // One input: the name of the module's function and what it takes. 0 where it was not taken.
    send(name, ...given) {
      if (!running || stands() || x.hh_over()) return 0;
      if (!still) {
        const late = deliver();
        if (late instanceof Promise) { // a box came first: the input was not meant for it
          follow(late);
          return 0;
        }
      }
      return follow(machine.call(name, ...given));
    },
    run: (ms) => (stands() ? 0 : follow(machine.call("hh_run", x.hh_now() + ms))),
    isHeld: () => held > 0,
    // The clock stands until `promise` comes; `ms` of it the machine counts by itself.
    async hold(promise, ms = 0) {
      stop();
      held += 1;
      clearTimeout(alarm);
      queueMicrotask(refresh);
      try {
        return await promise;
      } finally {
        counted += ms;
        held -= 1;
        goOn();
      }
    },
    hide(now) {
      if (now === hidden) return;
      if (now) stop();
      hidden = now;
      if (!now) {
        goOn();
        arm();
      }
    },
    follow,
  };
}
