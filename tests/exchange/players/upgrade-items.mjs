// Items of QTI 2.1 as the player reads them: a JSON list of XML texts from standard input to standard output.
//   node upgrade-items.mjs <file of the converter>
import { readFileSync } from 'node:fs';

const { convertQti2toQti3 } = await import(process.argv[2]);
const upgraded = [];
for (const item of JSON.parse(readFileSync(0, 'utf8'))) upgraded.push(await convertQti2toQti3(item));
process.stdout.write(JSON.stringify(upgraded));
