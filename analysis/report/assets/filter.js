// Shows only the fields that contain what is typed. Everything else on the page works without a script.
(() => {
  "use strict";
  const box = document.getElementById("filter-box");
  const input = document.getElementById("filter");
  const count = document.getElementById("filter-count");
  if (!box || !input || !count) return;

  // Read once, and only when somebody filters, because a page may have a hundred thousand rows.
  let groups = null;
  const readGroups = () =>
    Array.from(document.querySelectorAll("table.fields"), (table) => {
      const rows = Array.from(table.querySelectorAll("tr.field"), (row) => {
        const details = row.querySelector("summary");
        const name = details || row.cells[0];
        const values = Array.from(row.cells).slice(1);
        return { row, text: [name, ...values].map((part) => part.textContent).join(" ").toLowerCase() };
      });
      return { table, rows };
    }).filter((group) => group.rows.length > 0);

  const apply = () => {
    groups = groups || readGroups();
    const wanted = input.value.trim().toLowerCase();
    let shown = 0;
    let all = 0;
    for (const { table, rows } of groups) {
      let visible = 0;
      for (const { row, text } of rows) {
        const matches = text.includes(wanted);
        row.hidden = !matches;
        if (matches) visible += 1;
      }
      table.hidden = visible === 0;
      shown += visible;
      all += rows.length;
    }
    count.textContent = wanted === "" ? "" : shown === 0 ? "No field matches" : `${shown} of ${all} fields`;
  };

  // A link to a row that the filter hides would lead nowhere.
  const showTarget = () => {
    const target = location.hash && document.getElementById(location.hash.slice(1));
    if (!target) return;
    if (target.closest("[hidden]")) {
      input.value = "";
      apply();
    }
    const details = target.closest("details");
    if (details) details.open = true;
    target.scrollIntoView();
  };

  input.addEventListener("input", apply);
  window.addEventListener("hashchange", showTarget);
  box.hidden = false;
})();
