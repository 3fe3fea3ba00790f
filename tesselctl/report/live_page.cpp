#include "tesselctl/report/live_page.hpp"

namespace tesselctl {

// The page is fetched again and again; what differs goes into the one that is shown, so that focus,
// folds and place stay. A row goes by the headings above it and its first cell.
const std::string_view kLiveScript = R"('use strict';
const byId = id => document.getElementById(id);
const all = (selector, root) => [...root.querySelectorAll(selector)];
const main = document.querySelector('main');
const boxes = 'section,figure,details,.part,.card';
let page = main.cloneNode(true);  // as it came
let now = readRound(page);
let before = null;                // the round before that
let mark = null;                  // the round that was marked
const orders = new Map();         // of the tables that were sorted, by their headings
let timer = 0;

function titleOf(box) {
  const parts = [...box.querySelector('h2,h3,h4,summary').childNodes];
  return parts.filter(part => part.className !== 'n').map(part => part.textContent).join('');
}

function pathOf(node) {
  let path = '';
  for (let box = node.closest(boxes); box; box = box.parentElement.closest(boxes)) {
    path = titleOf(box) + ' / ' + path;
  }
  return path;
}

function* keyedRows(root) {
  const met = new Map();
  for (const row of all('tbody tr', root)) {
    const key = pathOf(row) + row.cells[0].textContent;
    const times = (met.get(key) || 0) + 1;
    met.set(key, times);
    yield [times === 1 ? key : key + ' ' + times, row];
  }
}

function readRound(root) {
  const rows = new Map();
  for (const [key, row] of keyedRows(root)) {
    rows.set(key, [...row.cells].map(cell => cell.textContent));
  }
  return {time: Number(root.dataset.time), clock: new Date().toLocaleTimeString(), rows};
}

const numberIn = text => Number(text.replaceAll(',', ''));

function append(parent, tag, text, name) {
  const element = document.createElement(tag);
  element.textContent = text;
  element.className = name;
  parent.append(' ', element);
  return element;
}

function addRate(row, cells, cellsBefore) {
  cells.forEach((text, i) => {
    const more = numberIn(text) - numberIn(cellsBefore[i]);
    if (row.cells[i].className !== 'n' || !(more > 0)) return;
    const rate = more * 1000 / (now.time - before.time);
    const digits = {maximumFractionDigits: rate < 10 ? 1 : 0};
    append(row.cells[i], 'small', '+' + rate.toLocaleString('en', digits) + '/s', 'rate');
  });
}

function addSortButtons(root) {
  for (const table of all('table', root)) {
    const order = orders.get(pathOf(table));
    all('thead th', table).forEach(head => {
      const button = document.createElement('button');
      button.type = 'button';
      button.append(...head.childNodes);
      head.append(button);
      if (order && order.column === head.cellIndex) {
        head.setAttribute('aria-sort', order.down ? 'descending' : 'ascending');
      }
    });
    if (!order) continue;
    const text = row => row.cells[order.column].textContent.replaceAll(',', '');
    const rows = all('tbody tr', table).map(row => [text(row), row]);
    const sign = order.down ? -1 : 1;
    rows.sort((a, b) => sign * a[0].localeCompare(b[0], 'en', {numeric: true}));
    table.tBodies[0].append(...rows.map(([, row]) => row));
  }
}

// Marks what is not as it was, and says how much that is.
function addMarks(rows) {
  const counts = {changed: 0, new: 0};
  for (const [key, row] of rows) {
    const then = mark.rows.get(key);
    const what = !then ? 'new' : then.join() === now.rows.get(key).join() ? '' : 'changed';
    if (!what) continue;
    ++counts[what];
    row.classList.add('marked');
    append(row.cells[0], 'small', what, 'flag');
  }
  const gone = [...mark.rows.keys()].filter(key => !now.rows.has(key)).length;
  return `Since ${mark.clock}: ${counts.changed} changed, ${counts.new} new, ${gone} gone.`;
}

function hideOthers(root, rows, wanted, only) {
  let shown = 0;
  for (const [key, row] of rows) {
    const text = (key + ' ' + row.textContent).toLowerCase();
    row.hidden = !text.includes(wanted) || (only && !row.classList.contains('marked'));
    shown += !row.hidden;
  }
  for (const box of all(boxes, root)) {
    box.hidden = !box.querySelector('tbody tr:not([hidden])');
    if (box.tagName === 'DETAILS' && !box.hidden && !box.open) box.open = box.dataset.found = true;
  }
  return shown === 1 ? '1 row is shown.' : `${shown} rows are shown.`;
}

function show() {
  const next = page.cloneNode(true);
  const rows = [...keyedRows(next)];
  for (const [key, row] of rows) {
    const cells = before && before.rows.get(key);
    if (cells && row.closest('#counters')) addRate(row, now.rows.get(key), cells);
  }
  const open = new Set(all('details[open]:not([data-found])', main).map(pathOf));
  for (const fold of all('details', next)) fold.open = fold.open || open.has(pathOf(fold));
  const news = mark ? [addMarks(rows)] : [];
  addSortButtons(next);
  const wanted = byId('search').value.trim().toLowerCase();
  const only = mark !== null && byId('only').checked;
  if (wanted || only) news.push(hideOthers(next, rows, wanted, only));
  morph(main, next);
  say(news.join(' '));
}

// What is said again is not read out again.
function say(text) {
  if (byId('news').textContent !== text) byId('news').textContent = text;
}

function morph(from, to) {
  for (const {name} of [...from.attributes]) if (!to.hasAttribute(name)) from.removeAttribute(name);
  for (const {name, value} of to.attributes) {
    if (from.getAttribute(name) !== value) from.setAttribute(name, value);
  }
  const old = [...from.childNodes];
  const nodes = [...to.childNodes];
  nodes.forEach((node, i) => {
    if (!old[i]) return from.append(node);
    if (old[i].nodeName !== node.nodeName) return old[i].replaceWith(node);
    if (node.nodeType === Node.ELEMENT_NODE) return morph(old[i], node);
    if (old[i].data !== node.data) old[i].data = node.data;
  });
  old.slice(nodes.length).forEach(node => node.remove());
}

async function refresh() {
  clearTimeout(timer);
  const started = performance.now();
  try {
    const answer = await fetch(location.pathname + location.search);
    if (!answer.ok) throw new Error(answer.statusText);
    const fetched = new DOMParser().parseFromString(await answer.text(), 'text/html');
    page = fetched.querySelector('main');
    before = now;
    now = readRound(page);
    morph(document.querySelector('nav'), fetched.querySelector('nav'));
    show();
    byId('clock').textContent = 'As of ' + now.clock + '.';
  } catch (error) {
    say('The server does not answer.');
  }
  const pause = Number(byId('pause').value) * 1000;
  // A large device has a tenth of the server's time at most.
  const wait = Math.max(pause, 10 * (performance.now() - started));
  if (pause && !document.hidden) timer = setTimeout(refresh, wait);
}

main.addEventListener('click', event => {
  const button = event.target.closest('thead button');
  if (!button) return;
  const path = pathOf(button);
  const column = button.parentElement.cellIndex;
  const order = orders.get(path);
  const down = order && order.column === column ? !order.down : button.closest('.n,.wide') !== null;
  orders.set(path, {column, down});
  show();
});
byId('search').addEventListener('input', show);
byId('only').addEventListener('change', show);
byId('pause').addEventListener('change', refresh);
byId('mark').addEventListener('click', () => {
  mark = now;
  byId('only').disabled = false;
  show();
});
document.addEventListener('visibilitychange', () => document.hidden || refresh());
byId('tools').hidden = false;
byId('clock').textContent = 'As of ' + now.clock + '.';
show();
timer = setTimeout(refresh, Number(byId('pause').value) * 1000);
)";

}  // namespace tesselctl
