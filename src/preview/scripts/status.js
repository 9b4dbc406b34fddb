// SPDX-License-Identifier: MIT
// Sends what a page writes to the status line, which this browser lacks, to the host.
(function () {
  'use strict';
  let status = '';
  Object.defineProperty(window, 'status', {
    get: () => status,
    set: text => {
      status = String(text);
      console.log('STATUS:' + status);
    },
  });
})();
