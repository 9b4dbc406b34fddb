// What the common grammar of GIFT makes of each file of a folder, in the order of their names, as JSON.
//   node parse-gift.cjs <folder of the parser> <folder with files>
const fs = require('fs');
const path = require('path');

const [parserFolder, folder] = process.argv.slice(2);
const parser = require(parserFolder);
const parsed = fs.readdirSync(folder).sort().map((name) => {
  try {
    return parser.parse(fs.readFileSync(path.join(folder, name), 'utf8'));
  } catch (error) {
    return { error: `${name}: ${error.message} ${JSON.stringify(error.location)}` };
  }
});
console.log(JSON.stringify(parsed));
