// The configuration, as a text that the library's own loader reads.

// Sets the built-in one to begin with; `onChange` is called for all that come after it.
function watchConfig(library, builtIn, onChange) {
  const box = byId('config');
  const told = byId('config-told');
  const fail = (message) => {
    told.className = 'error';
    told.textContent = `Not used: ${message}`;
  };
  const set = (bytes, source) => {
    library.setConfig(bytes);
    box.removeAttribute('aria-invalid');
    told.className = 'muted';
    told.textContent = `In use: ${source}.`;
  };
  const use = (bytes, source) => {
    try {
      set(bytes, source);
    } catch (error) {
      box.setAttribute('aria-invalid', 'true');
      fail(error.message);
      return;
    }
    onChange();
  };
  const useTyped = debounced(150, () => use(encoder.encode(box.value), 'the text below'));
  const show = (bytes, source) => {
    useTyped.cancel();
    box.value = decoder.decode(bytes);
    use(bytes, source);
  };
  box.addEventListener('input', useTyped);
  byId('config-reset').addEventListener('click', () => show(builtIn, 'the built-in configuration'));
  takeFiles(byId('config-file'), box, show, fail);
  box.value = decoder.decode(builtIn);
  set(builtIn, 'the built-in configuration');
}
