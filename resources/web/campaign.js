// The table of a campaign: sorted by what its headings say. Lines that failed stay at its end.

const table = document.getElementById('campaign');
const language = document.documentElement.lang || 'en';
const collator = new Intl.Collator(language, { numeric: true, sensitivity: 'base' });

/** What a row is sorted by; null where it has nothing there. */
function keyOf(row, column, kind) {
  const cell = row.cells[column];
  if (row.classList.contains('failed') && column > 1) return null;
  if (kind === 'text') return cell.textContent.trim();
  return cell.dataset.value === undefined ? null : Number(cell.dataset.value);
}

function compare(a, b, kind) {
  return kind === 'text' ? collator.compare(a, b) : a - b;
}

function sortBy(heading) {
  const up = heading.getAttribute('aria-sort') !== 'ascending';
  const { sorts } = heading.dataset;
  const body = table.tBodies[0];
  const rows = [...body.rows].map((row) => ({ row, key: keyOf(row, heading.cellIndex, sorts) }));
  rows.sort((a, b) => {
    if (a.key === null || b.key === null) return (a.key === null) - (b.key === null);
    return up ? compare(a.key, b.key, sorts) : compare(b.key, a.key, sorts);
  });
  body.append(...rows.map(({ row }) => row));
  for (const each of table.querySelectorAll('[aria-sort]')) each.removeAttribute('aria-sort');
  heading.setAttribute('aria-sort', up ? 'ascending' : 'descending');
}

for (const heading of table.querySelectorAll('[data-sorts]')) {
  const button = document.createElement('button');
  button.type = 'button';
  button.append(...heading.childNodes);
  button.addEventListener('click', () => sortBy(heading));
  heading.append(button);
}

const tools = document.getElementById('tools');
tools.append(themeButton(tools.dataset.dark, tools.dataset.light));
