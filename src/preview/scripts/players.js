// SPDX-License-Identifier: MIT
// Replaces <embed> elements, which this browser leaves blank for most files in exams, by elements that it shows, and
// pictures that do not appear by notices. `host` has texts and places.
(function (host) {
  'use strict';
  const sounds = ['mp3', 'wav', 'wma', 'm4a', 'aac', 'aiff', 'amr', 'opus', 'flac', 'ogg', 'au'];
  const films = ['mpg', 'mpeg', 'dat', 'asf', 'avi', 'wmv', 'mp4', 'webm', 'flv', 'mov', 'm4v', 'mkv', '3gp', 'rm'];
  const pictures = ['jpg', 'jpeg', 'gif', 'bmp', 'png', 'webp', 'svg'];
  const documents = [
    'doc', 'docx', 'rtf', 'odt', 'ppt', 'pptx', 'odp', 'xls', 'xlsx', 'ods', 'pdf', 'txt', 'htm', 'html',
  ];
  const HostRequest = window.XMLHttpRequest;  // the page may replace it

  function fileNameOf(source) {
    const path = source.split(/[?#]/)[0].replace(/\\|%5c/gi, '/');
    const last = path.substring(path.lastIndexOf('/') + 1);
    try {
      return decodeURIComponent(last);
    } catch (malformed) {
      return last;
    }
  }

  // The user's names are known for the files attached to the exam.
  function nameOf(element, source) {
    return element.dataset.name || fileNameOf(source);
  }

  function extensionOf(source) {
    const name = fileNameOf(source);
    const dot = name.lastIndexOf('.');
    return dot < 0 ? '' : name.substring(dot + 1).toLowerCase();
  }

  function filled(text, name) {
    return text.replace('%1', () => name);
  }

  function notice(text) {
    const box = document.createElement('div');
    box.className = 'quorvantis-notice';
    box.textContent = text;
    return box;
  }

  // For files that can only be played: on paper their name stands for them.
  function playerBox(name) {
    const box = document.createElement('div');
    box.className = 'quorvantis-player';
    const label = document.createElement('div');
    label.className = 'quorvantis-name';
    label.textContent = name;
    box.append(label);
    return box;
  }

  // Calls `use` with a text that says why a file does not appear; empty if nothing is wrong.
  function askWhy(source, name, use) {
    const useUnknown = () => use(filled(host.cannotShow, name));
    let address;
    try {
      address = new URL(source, document.baseURI);
    } catch (malformed) {
      return useUnknown();
    }
    if (address.protocol !== location.protocol) return useUnknown();
    address.search = '?why';
    address.hash = '';
    const request = new HostRequest();
    request.open('GET', address.href);
    request.onload = () => use(request.responseText);
    request.onerror = useUnknown;
    request.send();
  }

  function keepMuted(media) {
    media.muted = true;
    media.classList.add('quorvantis-muted');
    media.addEventListener('volumechange', () => { media.muted = true; });
  }

  function player(embed, source, name, isSound) {
    const media = document.createElement(isSound ? 'audio' : 'video');
    media.controls = true;
    media.preload = 'metadata';
    const start = embed.getAttribute('autostart');
    media.autoplay = start !== null && !['0', 'false', 'no'].includes(start.toLowerCase());
    if (embed.getAttribute('width')) media.style.width = parseInt(embed.getAttribute('width'), 10) + 'px';
    if ('muted' in embed.dataset) keepMuted(media);
    const preparing = notice(filled(host.preparing, name));
    const box = playerBox(name);
    box.append(media);
    const slow = setTimeout(() => box.append(preparing), 700);
    const stopWaiting = () => {
      clearTimeout(slow);
      preparing.remove();
    };
    media.addEventListener('loadedmetadata', stopWaiting);
    media.addEventListener('error', () => {
      stopWaiting();
      askWhy(source, name, text => media.replaceWith(notice(text)));
    });
    // The page counts as loaded without it: a conversion may be slow.
    const begin = () => { media.src = source; };
    if (document.readyState === 'complete') begin();
    else window.addEventListener('load', begin);
    return box;
  }

  function picture(source, name) {
    const image = document.createElement('img');
    image.dataset.name = name;
    image.src = source;
    return image;
  }

  function frame(source) {
    const frame = document.createElement('iframe');
    frame.width = 690;
    frame.height = 350;
    frame.src = source;
    return frame;
  }

  function nothing(source, name) {
    const box = playerBox(name);
    askWhy(source, name, text => box.append(notice(text)));
    return box;
  }

  // Scripts cannot use fetch under the scheme of the pages, but the older request works.
  function bringFetch() {
    const original = window.fetch;
    window.fetch = function (resource, options) {
      const address = new URL(resource instanceof Request ? resource.url : resource, document.baseURI);
      if (address.protocol !== location.protocol) return original.call(window, resource, options);
      return new Promise((resolve, reject) => {
        const request = new HostRequest();
        request.open('GET', address.href);
        request.responseType = 'arraybuffer';
        request.onload = () => {
          const type = request.getResponseHeader('content-type') || 'application/octet-stream';
          resolve(new Response(request.response, {headers: {'content-type': type}}));
        };
        request.onerror = () => reject(new TypeError('Failed to fetch'));
        request.send();
      });
    };
  }

  let flashAsked = false;
  function bringFlash() {
    if (flashAsked) return;
    flashAsked = true;
    bringFetch();
    window.RufflePlayer = {config: {
      publicPath: host.flashFolder, allowNetworking: 'none', allowScriptAccess: false, openUrlMode: 'deny',
      unmuteOverlay: 'hidden', splashScreen: false, autoplay: 'on', contextMenu: 'off',
    }};
    const script = document.createElement('script');
    script.src = host.flashFolder + 'ruffle.js';
    document.documentElement.append(script);
  }

  function replaceFlash(embed, source, name) {
    const box = playerBox(name);
    embed.replaceWith(box);
    box.append(embed);
    // From the notice to the clip when it begins.
    if ('muted' in embed.dataset) {
      box.addEventListener('loadedmetadata', event => { event.target.volume = 0; }, true);
    }
    askWhy(source, name, text => text === '' ? bringFlash() : embed.replaceWith(notice(text)));
  }

  const seen = new WeakSet();
  function replace(embed) {
    if (seen.has(embed)) return;
    seen.add(embed);
    const source = embed.getAttribute('src') || '';
    const name = nameOf(embed, source);
    const extension = extensionOf(source);
    if (extension === 'swf') replaceFlash(embed, source, name);
    else if (pictures.includes(extension)) embed.replaceWith(picture(source, name));
    else if (sounds.includes(extension)) embed.replaceWith(player(embed, source, name, true));
    else if (films.includes(extension)) embed.replaceWith(player(embed, source, name, false));
    else if (documents.includes(extension)) embed.replaceWith(frame(source));
    else embed.replaceWith(nothing(source, name));
  }

  // Printing waits for the answer, see print.js.
  function replacePicture(image) {
    const source = image.getAttribute('src') || '';
    const name = nameOf(image, source);
    if (name === '' || /^(data|blob):/i.test(source)) return;
    image.dataset.quorvantisAsks = '';
    askWhy(source, name, text => {
      delete image.dataset.quorvantisAsks;
      if (image.naturalWidth > 0 || image.getAttribute('src') !== source) return;
      const box = notice(text);
      box.style.display = 'inline-block';
      image.replaceWith(box);
    });
  }
  document.addEventListener('error', event => {
    if (event.target instanceof HTMLImageElement) replacePicture(event.target);
  }, true);

  // Before the browser has laid out the change that added them.
  const embeds = document.getElementsByTagName('embed');
  new MutationObserver(() => Array.from(embeds).forEach(replace))
      .observe(document, {childList: true, subtree: true});
})
