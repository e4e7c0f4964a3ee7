// A module of WebAssembly that compiles, but wants a function that nobody has: `f` of `nowhere`.
const text = (name) => [name.length, ...Buffer.from(name)];
const section = (id, ...content) => [id, content.length, ...content];
const functionType = [0x60, 0, 0];
const anImport = [...text('nowhere'), ...text('f'), 0, 0];

export const unusableModule = Buffer.from([
  0, ...Buffer.from('asm'), 1, 0, 0, 0,
  ...section(1, 1, ...functionType),
  ...section(2, 1, ...anImport),
]);
