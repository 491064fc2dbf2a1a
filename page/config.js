// The configuration, as a text that the library's own loader reads.

function watchConfig(library, builtIn, onChange) {
  const box = byId('config');
  const told = byId('config-told');
  const use = (bytes, source) => {
    try {
      library.setConfig(bytes);
      box.removeAttribute('aria-invalid');
      told.className = 'muted';
      told.textContent = `In use: ${source}.`;
      onChange();
    } catch (error) {
      box.setAttribute('aria-invalid', 'true');
      told.className = 'error';
      told.textContent = `Not used: ${error.message}`;
    }
  };
  const show = (bytes, source) => {
    box.value = decoder.decode(bytes);
    use(bytes, source);
  };
  const useTyped = debounced(150, () => use(encoder.encode(box.value), 'the text below'));
  box.addEventListener('input', useTyped);
  byId('config-reset').addEventListener('click', () => show(builtIn, 'the built-in configuration'));
  takeFiles(byId('config-file'), box, show);
  show(builtIn, 'the built-in configuration');
}
