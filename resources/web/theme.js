// Light and dark: as the desktop has it, until somebody chooses.

const dark = window.matchMedia('(prefers-color-scheme: dark)');

function isDark() {
  const chosen = document.documentElement.dataset.theme;
  return chosen ? chosen === 'dark' : dark.matches;
}

/** A button that switches to the other look. \param changed called after */
function themeButton(darkName, lightName, changed = () => {}) {
  const toggle = document.createElement('button');
  toggle.type = 'button';
  toggle.className = 'theme';
  const show = () => {
    toggle.textContent = isDark() ? lightName : darkName;
    changed();
  };
  toggle.textContent = isDark() ? lightName : darkName;
  toggle.addEventListener('click', () => {
    document.documentElement.dataset.theme = isDark() ? 'light' : 'dark';
    show();
  });
  dark.addEventListener('change', show);
  return toggle;
}
