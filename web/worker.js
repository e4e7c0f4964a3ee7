// Reads VIFs beside the page, so that nothing there waits. The page sends first the module and the schemas, then one
// call at a time.
'use strict';

let reader = null;

const start = ({ compiled, schemas }) =>
  openReader(makeReader, { compiled, schemas, onProgress: (done, total) => postMessage({ progress: [done, total] }) });

async function answer({ name, parameters }) {
  try {
    const value = (await reader)[name](...parameters);
    const memory = (await reader).memory();
    postMessage({ value, memory }, value instanceof Uint8Array ? [value.buffer] : []);
  } catch (error) {
    const isSound = error instanceof ReaderError && error.status !== outOfMemory;
    postMessage({ error: { message: error.message, status: error.status ?? null, isSound } });
  }
}

onmessage = ({ data }) => {
  if (data.compiled) {
    reader = start(data);
    reader.catch(() => {}); // the first call reports it
  } else {
    answer(data);
  }
};
