// A reader of VIFs: passes bytes to the library's module, and passes on what the library answers. Runs in a worker of
// the page and in Node.js.
'use strict';

// A failure that the library reports. After any other one, the module must not be used again.
class ReaderError extends Error {
  constructor(status, message) {
    super(message);
    this.status = status;
  }
}

const outOfMemory = 3; // VIF_ERROR_MEMORY

// How many reasons come with the text of their line. For each, the library looks for the line from the start of the file:
// all of 10,000 reasons in 10 MB would take 20 seconds. Nobody reads so many.
const mostSources = 100;

// Starts the module. What its own script returns stays pending if it cannot be instantiated.
const instantiate = (makeReader, compiled, settings) =>
  new Promise((resolve, reject) => {
    const instantiateWasm = (imports, receive) => {
      WebAssembly.instantiate(compiled, imports)
        .then((instance) => receive(instance, compiled))
        .catch(reject);
      return {};
    };
    makeReader({ ...settings, instantiateWasm }).then(resolve, reject);
  });

// makeReader   what the module's own script defines
// compiled     the module
// schemas      the texts of the schemas by their file names
// onProgress   is called with how much is done, of how much
async function openReader(makeReader, { compiled, schemas, onProgress = () => {} }) {
  const module = await instantiate(makeReader, compiled, { onProgress, print() {}, printErr() {} });
  const { FS } = module;
  const utf8 = new TextDecoder();

  const require = (status) => {
    if (status !== 0) throw new ReaderError(status, module.UTF8ToString(module._reader_message()));
  };

  const allocate = (size) => {
    const address = module._malloc(Math.max(size, 1));
    if (address === 0) throw new ReaderError(outOfMemory, 'memory ran out');
    return address;
  };

  const withText = (text, use) => {
    const size = module.lengthBytesUTF8(text) + 1;
    const address = allocate(size);
    module.stringToUTF8(text, address, size);
    try {
      return use(address);
    } finally {
      module._free(address);
    }
  };

  // A copy, because memory moves when it grows.
  const result = () => {
    const begin = module._reader_result();
    return module.HEAPU8.slice(begin, begin + module._reader_result_size());
  };

  const contents = [0, 0];
  const loadOne = (which, { name, bytes }) => {
    const address = allocate(bytes.length);
    module.HEAPU8.set(bytes, address);
    try {
      return withText(name, (text) => module._reader_load(which, address, bytes.length, text));
    } finally {
      module._free(contents[which]);
      contents[which] = address;
    }
  };
  const load = (...files) => files.forEach((file, which) => require(loadOne(which, file)));

  const findings = (notes) => {
    require(module._reader_findings_json(notes ? 1 : 0));
    return result();
  };

  // A finding with the text of its line, before its place and after it.
  const withSource = (finding) => {
    require(module._reader_source_line(finding.line, finding.column ?? 0));
    const before = utf8.decode(result());
    return { ...finding, before, after: module.UTF8ToString(module._reader_after_place()) };
  };

  FS.mkdir('/schemas');
  for (const [name, text] of Object.entries(schemas)) FS.writeFile(`/schemas/${name}`, text);
  withText('/schemas', (folder) => require(module._reader_use_schemas(folder)));

  return {
    // How many bytes of memory the module has taken; it gives none back.
    memory: () => module.HEAPU8.length,

    report(...files) {
      load(...files);
      require(module._reader_report(files.length));
      return result();
    },
    fieldsJson(file) {
      load(file);
      require(module._reader_fields_json());
      return result();
    },
    fieldsCsv(file) {
      load(file);
      require(module._reader_fields_csv());
      return result();
    },
    findingsJson(file, notes) {
      loadOne(0, file);
      return findings(notes);
    },
    differencesJson(before, after) {
      load(before, after);
      require(module._reader_differences_json());
      return result();
    },
    // Why a file is refused: its errors, the first of them with the lines that they are about.
    reasons(file) {
      loadOne(0, file);
      const [checked] = JSON.parse(utf8.decode(findings(false))).files;
      const errors = checked.findings.filter(({ severity }) => severity === 'error');
      return errors.map((finding, i) => (finding.line && i < mostSources ? withSource(finding) : finding));
    },
  };
}

if (typeof module !== 'undefined') module.exports = { openReader, ReaderError };
