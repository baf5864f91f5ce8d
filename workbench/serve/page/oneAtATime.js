// No queues.

/// A function that does the work one call at a time. Calls that come while it is
/// under way are made one, with the last arguments. Its promise is kept when a
/// work that began after the call is done.
export function oneAtATime(work) {
  let running = null;
  let waiting = null;
  const start = args => {
    running = (async () => work(...args))().finally(() => {
      running = null;
      if (!waiting) return;
      const next = waiting;
      waiting = null;
      start(next.args).then(next.resolve, next.reject);
    });
    return running;
  };
  return (...args) => {
    if (!running) return start(args);
    if (waiting) waiting.args = args;
    else {
      waiting = {args};
      waiting.promise = new Promise((resolve, reject) => Object.assign(waiting, {resolve, reject}));
    }
    return waiting.promise;
  };
}
