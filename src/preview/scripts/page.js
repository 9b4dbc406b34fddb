// SPDX-License-Identifier: MIT
// Gives a page of an exam its style, and shows a clicked picture at full size. `host` has the style.
(function (host) {
  'use strict';
  const style = new CSSStyleSheet();
  style.replaceSync(host.style);
  document.adoptedStyleSheets = [style];

  document.addEventListener('DOMContentLoaded', () => {
    for (const number of document.querySelectorAll('label[id^="Subject"]')) {
      const question = number.closest('table');
      if (!question) continue;
      question.classList.add('quorvantis-question');
      question.dir = 'auto';
    }
    for (const button of document.querySelectorAll('center > input[onclick*="Finish"]')) {
      button.parentElement.classList.add('quorvantis-finish');
    }
  });

  const isFitted = picture => picture instanceof HTMLImageElement && 'name' in picture.dataset &&
      picture.naturalWidth > picture.width;

  function showWhole(picture, event) {
    const box = document.createElement('div');
    box.className = 'quorvantis-whole';
    const whole = document.createElement('img');
    whole.src = picture.src;
    box.append(whole);
    box.addEventListener('click', () => box.remove());
    document.body.append(box);
    // Centres the clicked spot.
    const place = picture.getBoundingClientRect();
    box.scrollLeft = (event.clientX - place.left) / place.width * box.scrollWidth - box.clientWidth / 2;
    box.scrollTop = (event.clientY - place.top) / place.height * box.scrollHeight - box.clientHeight / 2;
  }
  document.addEventListener('mouseover', event => {
    if (isFitted(event.target)) event.target.classList.add('quorvantis-fitted');
  });
  document.addEventListener('click', event => {
    if (isFitted(event.target)) showWhole(event.target, event);
  });
})
