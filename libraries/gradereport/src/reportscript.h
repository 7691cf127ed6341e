#pragma once

#include <string_view>

namespace gradereport {

/// Sorting and filtering of the report. Rows and cards move together, so what is shown below the table is
/// what the table lists, in its order. A column's button goes through ascending, descending and the given
/// order.
inline constexpr std::string_view reportScript = R"js(
(() => {
'use strict';
const body = document.querySelector('#files tbody');
const cards = document.getElementById('cards');
const query = document.getElementById('query');
const shown = document.getElementById('shown');
const tiles = [...document.querySelectorAll('.tile')];
const heads = [...document.querySelectorAll('#files thead th')];
const collator = new Intl.Collator(document.documentElement.lang, { numeric: true });
const items = [...body.rows].map((row, order) => ({
  row, order,
  card: document.getElementById('c' + row.dataset.i),
  text: row.textContent.toLowerCase(),
}));
let kind = '';

const filter = () => {
  const words = query.value.toLowerCase().split(/\s+/);
  let count = 0;
  for (const item of items) {
    const fits = (!kind || item.row.dataset.k === kind) && words.every(word => item.text.includes(word));
    item.row.hidden = !fits;
    if (item.card) item.card.hidden = !fits;
    count += fits;
  }
  const told = shown.dataset.words.replace('%1', count).replace('%2', items.length);
  shown.textContent = count === items.length ? '' : told;
};

const cellText = (item, column) => {
  const cell = item.row.cells[column];
  return cell.dataset.v ?? cell.textContent;
};

const arrange = (column, direction) => {
  const numeric = heads[column].classList.contains('n') || column === 1;
  const sorted = items.map(item => {
    const text = cellText(item, column);
    return { item, key: numeric ? parseFloat(text) : text };
  });
  sorted.sort((a, b) => {
    const missing = numeric ? isNaN(a.key) - isNaN(b.key) : 0;
    if (missing) return missing;
    const order = numeric ? (a.key - b.key || 0) : collator.compare(a.key, b.key);
    return order * direction || a.item.order - b.item.order;
  });
  for (const { item } of sorted) {
    body.append(item.row);
    if (item.card) cards.append(item.card);
  }
};

const sortBy = column => {
  const next = { ascending: 'descending', descending: 'none' }[heads[column].ariaSort] || 'ascending';
  for (const head of heads) head.removeAttribute('aria-sort');
  if (next !== 'none') heads[column].setAttribute('aria-sort', next);
  arrange(column, { ascending: 1, descending: -1, none: 0 }[next]);
};

heads.forEach((head, column) => {
  const button = head.querySelector('button');
  button.disabled = false;
  button.addEventListener('click', () => sortBy(column));
});
for (const tile of tiles) {
  tile.disabled = false;
  tile.setAttribute('aria-pressed', tile.dataset.k === kind);
  tile.addEventListener('click', () => {
    kind = kind === tile.dataset.k ? '' : tile.dataset.k;
    for (const other of tiles) other.setAttribute('aria-pressed', other.dataset.k === kind);
    filter();
  });
}
query.hidden = false;
query.addEventListener('input', filter);
filter();
})();
)js";

} // namespace gradereport
