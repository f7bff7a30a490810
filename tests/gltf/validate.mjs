// Runs the Khronos glTF validator on each .glb named on the command line (or every .glb in the
// folders named) and fails when any has an error. Prints one line per file.
import fs from 'node:fs';
import path from 'node:path';
import validator from 'gltf-validator';

const files = process.argv.slice(2).flatMap((name) =>
  fs.statSync(name).isDirectory()
    ? fs.readdirSync(name).filter((f) => f.endsWith('.glb')).sort().map((f) => path.join(name, f))
    : [name]);
if (files.length === 0) {
  console.error('validate: no .glb files');
  process.exit(2);
}
let failed = 0;
for (const file of files) {
  const report = await validator.validateBytes(new Uint8Array(fs.readFileSync(file)), {
    maxIssues: 20,
    externalResourceFunction: () => Promise.reject(new Error('no external resources')),
  });
  const { numErrors, numWarnings, numInfos } = report.issues;
  console.log(`${path.basename(file)}: ${numErrors} errors, ${numWarnings} warnings, ${numInfos} infos`);
  for (const message of report.issues.messages.filter((m) => m.severity <= 1))
    console.log(`  ${message.severity === 0 ? 'error' : 'warning'} ${message.code} ${message.pointer ?? ''}: ${message.message}`);
  if (numErrors > 0) failed++;
}
console.log(`${files.length - failed} passed, ${failed} failed`);
process.exit(failed ? 1 : 0);
