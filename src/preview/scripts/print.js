// SPDX-License-Identifier: MIT
// On paper a frame cannot be scrolled: the whole content of every inline frame is put beside it, for paper only.
// Called repeatedly until all pictures have loaded; the value says whether they have.
(function () {
  'use strict';
  if (!document.querySelector('.quorvantis-paper')) {
    for (const frame of document.querySelectorAll('iframe')) {
      const inner = frame.contentDocument;
      if (!inner || !inner.body) continue;
      const paper = document.createElement('div');
      paper.className = 'quorvantis-paper';
      for (const node of inner.body.childNodes) {
        if (node.nodeName !== 'SCRIPT') paper.append(document.importNode(node, true));
      }
      frame.after(paper);
    }
  }
  return Array.from(document.images).every(image => image.complete && !('quorvantisAsks' in image.dataset));
})()
