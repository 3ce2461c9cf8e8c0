// The data of the page, and its words and numbers.

const data = JSON.parse(document.getElementById('data').textContent);
const words = data.words;
const language = document.documentElement.lang || 'en';
const formats = new Map();

/** A number as the language of the report writes it; a dash for none. */
function number(value, places) {
  if (!Number.isFinite(value)) return '\u2013';
  if (!formats.has(places)) {
    const options = {
      minimumFractionDigits: places,
      maximumFractionDigits: places,
      useGrouping: false,
    };
    formats.set(places, new Intl.NumberFormat(language, options));
  }
  const text = formats.get(places).format(value);
  return /[1-9]/.test(text) ? text : text.replace(/^[-\u2212]/, '');
}

/** The same with its sign. */
function signed(value, places) {
  const text = number(value, places);
  return value > 0 && /[1-9]/.test(text) ? `+${text}` : text;
}

/** Puts values into a text at %1, %2, ... */
function say(text, ...values) {
  return text.replace(/%(\d)/g, (place, index) => {
    const value = values[index - 1];
    return value === undefined ? place : value;
  });
}

/** Text for the chart library, which reads marks and entities in it. */
function chartText(text) {
  return text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;');
}

/**
 * A new element. `text` becomes its text, `on...` a listener, all else an attribute; what is false
 * is left out.
 */
function make(name, attributes = {}, children = []) {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) {
    if (key === 'text') {
      element.textContent = value;
    } else if (key.startsWith('on')) {
      element.addEventListener(key.slice(2), value);
    } else if (value !== false && value !== undefined) {
      element.setAttribute(key, value === true ? '' : value);
    }
  }
  element.append(...children);
  return element;
}

let labels = 0;

/** A control under its label. */
function labelled(text, control, className = 'field') {
  control.id = control.id || `control-${(labels += 1)}`;
  const label = make('label', { for: control.id, text });
  const parts = control.type === 'checkbox' ? [control, label] : [label, control];
  return make('span', { class: className }, parts);
}

function checkBox(text, checked, changed) {
  const box = make('input', { type: 'checkbox', onchange: () => changed(box.checked) });
  box.checked = checked;
  return labelled(text, box, 'check');
}

/** \param choices pairs of value and text */
function choice(text, choices, changed) {
  const select = make('select', { onchange: () => changed(select.value) });
  for (const [value, name] of choices) select.append(make('option', { value, text: name }));
  return labelled(text, select);
}

function button(text, pressed, attributes = {}) {
  return make('button', { type: 'button', text, onclick: pressed, ...attributes });
}

/** A table of texts behind a line that opens it; its rows are made when it opens. */
function numbersTable(title, headings, rows) {
  const details = make('details', { class: 'numbers' }, [make('summary', { text: title })]);
  const fill = () => {
    details.querySelector('.table')?.remove();
    if (!details.open) return;
    const line = (cell, texts) =>
      make('tr', {}, texts.map((text) => make(cell, { text, scope: cell === 'th' && 'col' })));
    const table = make('table', {}, [
      make('caption', { text: title }),
      make('thead', {}, [line('th', headings())]),
      make('tbody', {}, rows().map((row) => line('td', row))),
    ]);
    details.append(make('div', { class: 'table', tabindex: 0, role: 'region', 'aria-label': title }, [table]));
  };
  details.addEventListener('toggle', fill);
  return { element: details, refresh: fill };
}
