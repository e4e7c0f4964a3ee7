// The page: takes files, has a worker read them, and shows what it answers. All that is said of a file comes from the
// library; texts of files become text only, and reports run in a frame of their own that may do nothing but filter.
(() => {
  'use strict';
  const element = (id) => document.getElementById(id);
  const assets = JSON.parse(element('assets').textContent);
  const patience = 1000; // milliseconds until progress is shown
  const largestShown = 30_000_000; // bytes of a report
  const largestMemory = 500_000_000; // bytes that a worker may keep

  // --- Elements

  const make = (name, properties = {}, ...children) => {
    const made = Object.assign(document.createElement(name), properties);
    made.append(...children);
    return made;
  };
  const button = (text, onclick) => make('button', { type: 'button', textContent: text, onclick });
  const say = (text) => {
    element('status').textContent = text;
  };
  // What went wrong, besides files that are refused, until the reader dismisses it or does the next thing.
  const showNotice = (text) => {
    element('notice').hidden = false;
    element('notice-text').textContent = text;
    say(text);
  };
  const hideNotice = () => {
    element('notice').hidden = true;
  };
  element('dismiss').onclick = () => {
    hideNotice();
    (element('tabs').querySelector('[aria-current]') ?? element('choose')).focus();
  };

  const sizeInWords = (bytes) => (bytes < 1e6 ? `${Math.ceil(bytes / 1e3)} kB` : `${(bytes / 1e6).toFixed(1)} MB`);

  // --- The worker

  const inflate = async (text) => {
    const bytes = Uint8Array.from(atob(text), (c) => c.charCodeAt(0));
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
    return WebAssembly.compile(await new Response(stream).arrayBuffer());
  };
  const compiled = inflate(assets.module);
  const workerAddress = URL.createObjectURL(new Blob([assets.worker], { type: 'text/javascript' }));
  let ownSchemas = {};

  class Cancelled extends Error {}

  let worker = null;
  let giveUp = null; // ends the call that is under way
  let queue = Promise.resolve();

  const startWorker = async () => {
    const started = new Worker(workerAddress);
    started.postMessage({ compiled: await compiled, schemas: { ...assets.schemas, ...ownSchemas } });
    return started;
  };
  const stopWorker = () => {
    worker?.then((stopped) => stopped.terminate()).catch(() => {}); // one that did not start need not be stopped
    worker = null;
  };

  const answerOf = async (name, parameters, onProgress) => {
    worker ??= startWorker();
    const asked = await worker;
    return new Promise((resolve) => {
      asked.onerror = (event) => {
        event.preventDefault();
        resolve({ error: { message: event.message, isSound: false } });
      };
      asked.onmessage = ({ data }) => (data.progress ? onProgress(...data.progress) : resolve(data));
      asked.postMessage({ name, parameters });
    });
  };

  const ask = async (name, parameters, onProgress) => {
    const cancelled = new Promise((resolve, reject) => {
      giveUp = () => reject(new Cancelled('It was cancelled.'));
    });
    const { value, error, memory } = await Promise.race([answerOf(name, parameters, onProgress), cancelled]).finally(() => {
      giveUp = null;
    });
    if (error ? !error.isSound : memory > largestMemory) stopWorker();
    if (error) throw Object.assign(new Error(error.message), error);
    return value;
  };

  // Calls run one after the other.
  const call = (name, parameters, onProgress = () => {}) => {
    const answer = queue.then(() => ask(name, parameters, onProgress));
    queue = answer.catch(() => {});
    return answer;
  };

  // --- Progress of what takes long

  const showProgress = (done, total) => {
    const bar = element('progress');
    if (total > 1 && done > 0 && done < total) {
      bar.max = total;
      bar.value = done;
    } else {
      bar.removeAttribute('value');
    }
  };

  let underWay = []; // { what, isLong }, the oldest first; calls run in that order

  const showBusy = () => {
    const long = underWay.find(({ isLong }) => isLong);
    element('busy').hidden = !long;
    element('doing').textContent = long?.what ?? '';
  };

  // `replacesView` says whether the progress takes the place of what is shown.
  const withProgress = async (what, work, replacesView) => {
    const task = { what, isLong: false };
    if (underWay.length === 0) showProgress(0, 0);
    underWay.push(task);
    const timer = setTimeout(() => {
      task.isLong = true;
      if (replacesView()) element('view').hidden = true;
      showBusy();
      say(what);
    }, patience);
    try {
      return await work(showProgress);
    } finally {
      clearTimeout(timer);
      underWay = underWay.filter((other) => other !== task);
      showBusy();
      element('view').hidden = files.length === 0;
    }
  };

  element('cancel').onclick = () => {
    const end = giveUp;
    stopWorker();
    end?.();
  };

  // --- Saving

  const save = (name, type, content) => {
    const address = URL.createObjectURL(new Blob([content], { type }));
    const link = make('a', { href: address, download: name });
    link.click();
    setTimeout(() => URL.revokeObjectURL(address), 60_000);
    say(`Saved ${name}`);
  };
  const saver = (text, name, type, content) =>
    button(text, async (event) => {
      const menu = event.target.closest('details');
      if (menu) {
        menu.open = false;
        menu.querySelector('summary').focus();
      }
      hideNotice();
      try {
        save(name, type, await withProgress('Writing…', content, () => false));
      } catch (error) {
        showNotice(`${name} was not saved: ${error.message}`);
      }
    });
  const menuOf = (...entries) => {
    const menu = make('details', { className: 'menu' });
    menu.append(make('summary', { textContent: 'Save' }), make('ul', {}, ...entries.map((entry) => make('li', {}, entry))));
    menu.onkeydown = (event) => {
      if (event.key !== 'Escape') return;
      menu.open = false;
      menu.querySelector('summary').focus();
    };
    return menu;
  };
  const stem = (name) => name.replace(/\.[^.]*$/, '');

  // --- What is shown

  let files = []; // as from entryOf, in order
  let shown = null; // one of them, or 'differences'
  let compared = [null, null];
  let version = 0; // of what is shown, so that a late answer does not replace a newer one

  const sound = () => files.filter(({ report }) => report);

  const frameOf = (title, bytes) =>
    make('iframe', { className: 'report', title, sandbox: 'allow-scripts', srcdoc: new TextDecoder().decode(bytes) });

  const reportOrOffer = (title, bytes) => {
    if (bytes.length <= largestShown) return frameOf(title, bytes);
    const box = make('div', { className: 'message' });
    box.append(
      make('h3', { textContent: 'This is a large report' }),
      make('p', { textContent: `It has ${sizeInWords(bytes.length)}. It can be saved, or shown here, which takes a while.` }),
      make('p', {}, button('Show it', () => box.replaceWith(frameOf(title, bytes)))),
    );
    return box;
  };

  const placeInWords = ({ line, column, element: name }) =>
    [line ? `Line ${line}` : '', column ? `column ${column}` : '', name ?? ''].filter(Boolean).join(', ');

  const sourceOf = ({ line, column, before, after }) => {
    const first = column ? String.fromCodePoint(after.codePointAt(0) ?? 0x20) : '';
    return make(
      'pre',
      { className: 'source' },
      make('span', { className: 'number', textContent: line }),
      before,
      ...(column ? [make('mark', { textContent: first })] : []),
      after.slice(first.length),
    );
  };

  const reasonOf = (reason) => {
    const item = make('li', {}, make('p', { className: 'where', textContent: placeInWords(reason) }), make('p', { textContent: reason.message }));
    if (reason.before !== undefined) item.append(sourceOf(reason));
    return item;
  };

  const unreadOf = (entry) =>
    make(
      'div',
      { className: 'message' },
      make('h3', { textContent: 'This file was not read' }),
      make('p', { textContent: entry.error }),
      make('p', {}, button('Try again', () => retry(entry))),
    );

  const refusalOf = ({ error, reasons }) => {
    const box = make('div', { className: 'message' });
    box.append(make('h3', { textContent: 'This file cannot be read as a VIF' }), make('p', { textContent: error }));
    if (reasons.some(({ message }) => message !== error)) {
      box.append(make('p', { textContent: reasons.length === 1 ? 'The reason:' : `The ${reasons.length} reasons:` }));
      box.append(make('ol', { className: 'reasons' }, ...reasons.map(reasonOf)));
    }
    return box;
  };

  // For those who hear the page; the others see the tab.
  const titleOf = (text) => make('h2', { className: 'spoken', textContent: text, tabIndex: -1 });

  const contentOf = (entry) => {
    if (entry.report) return reportOrOffer(`Report on ${entry.name}`, entry.report);
    return entry.isUnread ? unreadOf(entry) : refusalOf(entry);
  };

  const viewOf = (entry) => {
    const { name, report, error, reasons } = entry;
    const given = { name, bytes: entry.bytes };
    const remove = button('Remove', () => removeFile(entry));
    if (!report && !error) return { actions: [], content: [titleOf(name)] };
    const findings = saver('Findings (JSON)', `${stem(name)}-findings.json`, 'application/json', (tell) => call('findingsJson', [given, true], tell));
    const ofReport = report && [
      saver('Report (HTML)', `${stem(name)}.html`, 'text/html', () => report),
      saver('Fields (JSON)', `${stem(name)}.json`, 'application/json', (tell) => call('fieldsJson', [given], tell)),
      saver('Fields (CSV)', `${stem(name)}.csv`, 'text/csv', (tell) => call('fieldsCsv', [given], tell)),
    ];
    const menu = report || reasons.length > 0 ? [menuOf(...(ofReport ?? []), findings)] : [];
    return { actions: [...menu, remove], content: [titleOf(name), contentOf(entry)] };
  };

  const chooser = (label, which) => {
    const id = `compared-${which}`;
    const select = make('select', { id });
    const choices = sound();
    for (const entry of choices) select.append(make('option', { textContent: entry.name, selected: entry === compared[which] }));
    select.onchange = () => {
      compared[which] = choices[select.selectedIndex];
      showDifferences(id);
    };
    return make('span', { className: 'pair' }, make('label', { htmlFor: id, textContent: label }), select);
  };

  const comparisonView = () => {
    const [before, after] = compared;
    const given = compared.map(({ name, bytes }) => ({ name, bytes }));
    const name = `${stem(before.name)}-to-${stem(after.name)}`;
    const menu = menuOf(
      saver('Report (HTML)', `${name}.html`, 'text/html', (tell) => call('report', given, tell)),
      saver('Differences (JSON)', `${name}.json`, 'application/json', (tell) => call('differencesJson', given, tell)),
    );
    const bar = make('div', { className: 'bar' }, chooser('Before', 0), chooser('After', 1));
    return { actions: [menu], content: [titleOf('Differences'), bar] };
  };

  const show = ({ actions, content }) => {
    element('actions').replaceChildren(...actions);
    element('view').replaceChildren(...content);
    element('view').hidden = false;
    showTabs();
  };

  const showDifferences = async (focused) => {
    const mine = ++version;
    shown = 'differences';
    const [before, after] = compared;
    const title = `How ${after.name} differs from ${before.name}`;
    show(comparisonView());
    if (focused) element(focused).focus();
    let content;
    try {
      const given = compared.map(({ name, bytes }) => ({ name, bytes }));
      const compare = (tell) => call('report', given, tell);
      content = reportOrOffer(title, await withProgress('Comparing…', compare, () => mine === version));
    } catch (error) {
      content = make('div', { className: 'message' }, make('p', { textContent: error.message }));
    }
    if (mine !== version) return;
    element('view').append(content);
    say(title);
  };

  const showEntry = (entry) => {
    ++version;
    shown = entry;
    show(viewOf(entry));
  };

  const tab = (text, isCurrent, className, onclick) => {
    const made = button(text, onclick);
    made.className = className;
    made.title = text;
    if (isCurrent) made.setAttribute('aria-current', 'true');
    return make('li', {}, made);
  };

  const stateOf = ({ report, error, isUnread }) => {
    if (isUnread) return 'unread';
    if (error) return 'refused';
    return report ? '' : 'reading';
  };

  const showTabs = () => {
    const hadFocus = element('tabs').contains(document.activeElement);
    const tabs = files.map((entry) => tab(entry.name, shown === entry, stateOf(entry), () => showEntry(entry)));
    if (sound().length > 1) tabs.push(tab('Differences', shown === 'differences', '', () => showDifferences()));
    element('tabs').replaceChildren(...tabs);
    if (hadFocus) element('tabs').querySelector('[aria-current]')?.focus();
    element('head').hidden = element('add').hidden = files.length === 0;
    element('welcome').hidden = files.length > 0;
    if (files.length === 0) element('view').hidden = true;
  };

  const removeFile = (entry) => {
    const position = files.indexOf(entry);
    files = files.filter((other) => other !== entry);
    if (compared.includes(entry)) compared = sound().slice(-2);
    shown = null;
    if (files.length === 0) {
      showTabs();
      element('choose').focus();
      return;
    }
    showEntry(files[Math.min(position, files.length - 1)]);
    element('view').querySelector('h2').focus();
  };

  // --- Taking files

  const entryOf = (file) => ({
    file,
    name: file.name,
    bytes: null,
    report: null,
    error: null, // why there is no report
    isUnread: false, // whether that is not due to what the file contains
    reasons: [],
  });

  const bytesOf = async (file) => {
    try {
      return new Uint8Array(await file.arrayBuffer());
    } catch {
      throw new Error('The browser cannot read it. Is it a folder, or has it gone?');
    }
  };

  const clear = (entry) => Object.assign(entry, { report: null, error: null, isUnread: false, reasons: [] });

  const read = async (entry, tell) => {
    clear(entry);
    try {
      entry.bytes ??= await bytesOf(entry.file);
      entry.report = await call('report', [{ name: entry.name, bytes: entry.bytes }], tell);
    } catch (error) {
      entry.error = error.message;
      entry.isUnread = !entry.bytes || error instanceof Cancelled;
      // What made the library fail would do so again.
      if (error.isSound) entry.reasons = await call('reasons', [{ name: entry.name, bytes: entry.bytes }], tell).catch(() => []);
    }
  };

  const outcomeOf = ({ name, error, isUnread }) => {
    if (isUnread) return `${name} was not read`;
    return error ? `${name} cannot be read as a VIF` : `${name} is read`;
  };

  // What came last is compared: two files of those, or one with the file before it. Otherwise the choice stays while it can.
  const chooseCompared = (newest) => {
    const good = sound();
    const goodAndNew = newest.filter((entry) => good.includes(entry));
    const canStay = compared.length === 2 && compared.every((entry) => good.includes(entry));
    if (good.length < 2) return;
    if (goodAndNew.length >= 2) compared = goodAndNew.slice(0, 2);
    else if (goodAndNew.length === 1 || !canStay) compared = good.slice(-2);
  };

  const readAll = async (entries, newest = entries) => {
    for (const entry of entries) {
      if (!files.includes(entry)) continue;
      await withProgress(`Reading ${entry.name}…`, (tell) => read(entry, tell), () => shown === entry);
      if (!files.includes(entry)) continue;
      chooseCompared(newest);
      if (shown === entry) showEntry(entry);
      else showTabs();
      say(outcomeOf(entry));
    }
  };

  const schemaNames = Object.keys(assets.schemas);

  const tellSchemas = () => {
    const own = Object.keys(ownSchemas);
    element('schemas').textContent =
      own.length > 0
        ? `Schemas for XML files: your ${own.join(' and ')}.`
        : 'Schemas for XML files: built in. Drop other ones (.xsd) to use them instead.';
    element('built-in').hidden = own.length === 0;
  };

  // A comparison that is shown is made again from files that were read again.
  const renewDifferences = () => {
    if (shown !== 'differences') return undefined;
    return sound().length > 1 ? showDifferences() : showEntry(compared.find(({ error }) => error));
  };

  const useSchemas = async (schemas) => {
    ownSchemas = schemas;
    queue = queue.then(stopWorker); // after the calls that are under way
    tellSchemas();
    await readAll(files, []);
    await renewDifferences();
  };

  const takeSchemas = async (given) => {
    const unknown = given.find(({ name }) => !schemaNames.includes(name));
    if (unknown) throw new Error(`${unknown.name} is not used: schemas must be named ${schemaNames.join(' or ')}.`);
    const schemas = {};
    for (const file of given) {
      schemas[file.name] = await bytesOf(file).catch((error) => {
        throw new Error(`${file.name} is not used. ${error.message}`);
      });
    }
    await useSchemas({ ...ownSchemas, ...schemas });
  };

  const takeFiles = async (entries) => {
    files = [...files, ...entries];
    showEntry(entries[0]);
    await readAll(entries);
    const areSound = entries.every((entry) => sound().includes(entry));
    const hasStayed = shown === entries[0]; // the reader, who may have opened another tab
    if (entries.length === 2 && areSound && hasStayed) await showDifferences();
  };

  // Files are taken in the order in which they come. What goes wrong with some does not keep out the next ones.
  let taking = Promise.resolve();
  const inTurn = (work) => {
    hideNotice();
    taking = taking.then(work).catch((error) => showNotice(error.message));
  };

  const take = (given) => {
    const isSchema = ({ name }) => /\.xsd$/i.test(name);
    const schemas = given.filter(isSchema);
    const entries = given.filter((file) => !isSchema(file)).map(entryOf);
    if (schemas.length > 0) inTurn(() => takeSchemas(schemas));
    if (entries.length > 0) inTurn(() => takeFiles(entries));
  };

  const retry = (entry) => {
    showEntry(clear(entry));
    element('view').querySelector('h2').focus();
    inTurn(() => readAll([entry]));
  };

  element('built-in').onclick = () => inTurn(() => useSchemas({}));

  const input = element('files');
  input.onchange = () => {
    take([...input.files]);
    input.value = '';
  };
  element('choose').onclick = element('add').onclick = () => input.click();

  // A drag over a report would go to the report's own document, which takes no files. So a report lets the pointer through
  // while files are dragged, and while the pointer is outside of the page, where every drag of files begins.
  document.documentElement.onmouseleave = () => document.body.classList.add('left');
  document.onmousemove = document.onpointerdown = () => document.body.classList.remove('left', 'dragged');

  const isOfFiles = (event) => event.dataTransfer?.types.includes('Files');
  document.ondragenter = document.ondragover = (event) => {
    if (!isOfFiles(event)) return;
    event.preventDefault();
    document.body.classList.add('dragged');
  };
  document.ondragleave = (event) => {
    if (!event.relatedTarget) document.body.classList.remove('dragged');
  };
  document.ondrop = (event) => {
    document.body.classList.remove('dragged');
    if (!isOfFiles(event)) return;
    event.preventDefault();
    take([...event.dataTransfer.files]);
  };

  worker = startWorker();
})();
