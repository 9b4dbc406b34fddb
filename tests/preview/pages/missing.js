// What is still missing of the exam, in all frames; empty when everything is there.
(() => {
  const all = [];
  const gather = w => { all.push(w.document); for (let i = 0; i < w.frames.length; ++i) gather(w.frames[i]); };
  gather(window);
  const find = tag => all.flatMap(d => Array.from(d.querySelectorAll(tag)));
  const said = all.map(d => d.body ? d.body.innerText : '').join(' ');
  const missing = [];
  const expect = (what, is) => { if (!is) missing.push(what); };
  expect('three sounds and one in a frame', find('audio').filter(a => a.readyState > 0).length === 4);
  expect('film', find('video').some(v => v.videoWidth > 0));
  expect('two pictures', find('img').filter(i => i.naturalWidth === 40).length === 2);
  expect('two documents', find('img').filter(i => i.naturalWidth > 500).length === 2);
  expect('text', said.includes('a text'));
  expect('flash', find('ruffle-embed,embed[src$=swf]').length > 0 || said.includes('clip.swf needs Ruffle'));
  expect('no notice: ' + said, !/cannot appear|is gone/.test(said));
  return missing.join('; ');
})()
