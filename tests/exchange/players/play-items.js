// Shows items in the player, answers each as a pupil does, with clicks and typed words, and tells what is not as
// expected. An item has `xml`, the texts of its `options`, the number of its `fields`, the elements that it must
// show in `shows`, the number of its `pictures`, and `tries`: what is ticked or typed, and the score for that.
window.faults = null;

// Browsers of some years ago want other names of states than the player has.
for (const name of ['add', 'delete', 'has']) {
  const original = CustomStateSet.prototype[name];
  CustomStateSet.prototype[name] = function (state) {
    return original.call(this, state.startsWith('--') ? state : `--${state}`);
  };
}

const becomes = async (condition) => {
  for (let i = 0; i < 400; ++i) {
    const result = condition();
    if (result) return result;
    await new Promise((resolve) => setTimeout(resolve, i < 50 ? 0 : 10));
  }
  return null;
};

const plain = (text) => text.replace(/\s+/g, '');  // line breaks are no text

const show = async (xml) => {
  const place = document.createElement('qti-item');
  const container = document.createElement('item-container');
  container.itemXML = xml.replace(/<qti-stylesheet[^>]*>/, '');  // a page of the disk cannot fetch it
  place.append(container);
  document.body.replaceChildren(place);
  const item = await becomes(() => container.shadowRoot?.querySelector('qti-assessment-item'));
  await becomes(() => item?.querySelector('qti-item-body') && item.variables?.length > 0);
  return item;
};

const fieldsOf = (item) => [...item.querySelectorAll('qti-text-entry-interaction')];

const type = async (field, words) => {
  const input = await becomes(() => field.shadowRoot?.querySelector('input'));
  input.value = words;
  input.dispatchEvent(new Event('change', { bubbles: true }));
};

const choose = async (item, identifiers) => {
  for (const identifier of identifiers) {
    const choice = item.querySelector(`qti-simple-choice[identifier="${identifier}"]`);
    await choice.updateComplete;
    choice.click();
  }
};

// The player puts a slash before addresses. It escapes them once more, which changes none of ours.
const exportedAddress = (picture) => picture.getAttribute('src').slice(1);

const checkLook = async (item, wanted, tell) => {
  const options = [...item.querySelectorAll('qti-simple-choice')].sort(
    (a, b) => a.identifier.localeCompare(b.identifier)).map((choice) => plain(choice.textContent));
  if (JSON.stringify(options) !== JSON.stringify(wanted.options.map(plain)))
    tell(`shows the options ${JSON.stringify(options)}, not ${JSON.stringify(wanted.options.map(plain))}`);
  if (fieldsOf(item).length !== wanted.fields) tell(`has ${fieldsOf(item).length} fields`);
  for (const name of wanted.shows) {
    const found = item.querySelector(name);
    if (!found || found.getBoundingClientRect().height === 0) tell(`does not show ${name}`);
  }
  const pictures = [...item.querySelectorAll('img')];
  if (pictures.length !== wanted.pictures) tell(`has ${pictures.length} pictures`);
  for (const picture of pictures) {
    picture.src = exportedAddress(picture);
    await picture.decode().catch(() => tell(`does not show the picture ${picture.src}`));
  }
  if (!plain(item.querySelector('qti-item-body').textContent).includes(plain(wanted.begin)))
    tell(`shows the text ${plain(item.textContent)}, not ${wanted.begin}`);
};

const play = async (items) => {
  const faults = [];
  for (const wanted of items) {
    const tell = (fault) => faults.push(`${wanted.name} ${fault}\n${wanted.xml}`);
    try {
      await checkLook(await show(wanted.xml), wanted, tell);
      for (const attempt of wanted.tries) {
        const item = await show(wanted.xml);
        if (wanted.fields === 0) await choose(item, attempt.given);
        for (let i = 0; i < wanted.fields; ++i) await type(fieldsOf(item)[i], attempt.given[i]);
        if (!item.processResponse()) tell('has no response processing');
        const score = Number(item.getOutcome('SCORE').value);
        if (Math.abs(score - attempt.score) > 1e-3)  // the player rounds
          tell(`scores ${score} for ${JSON.stringify(attempt.given)}, not ${attempt.score}`);
      }
    } catch (error) {
      tell(`fails: ${error.stack}`);
    }
  }
  window.faults = faults;
};
