// VIFs that are not among the examples.
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { example } from './paths.js';

// Five mistakes in lines 2 to 6, one of them after characters beyond ASCII.
export const refusedXml = `<?xml version="1.0" encoding="utf-8"?>
<vif:VIF xmlns:vif="http://usb.org/VendorInfoFile.xsd"><vif:VIF_Specification>3.26</vif:VIF_Specification>
<vif:Vendor_Name>Müller &amp; Söhne</vif:Vendor_Name><vif:Product_Type value="none"/>
<vif:Component><vif:PD_Port_Type value="many">three</vif:PD_Port_Type>
<vif:Num_Src_PDOs value="two"/></vif:Component>
</vif:VIF>
`;

// As many mistakes, in a line each.
export const xmlWithMistakes = (count) => `<?xml version="1.0" encoding="utf-8"?>
<vif:VIF xmlns:vif="http://usb.org/VendorInfoFile.xsd"><vif:VIF_Specification>3.26</vif:VIF_Specification>
${Array.from({ length: count }, (_, i) => `<vif:Component><vif:PD_Port_Type value="many">${i}</vif:PD_Port_Type></vif:Component>`).join('\n')}
</vif:VIF>
`;

export const deepXml = `<a>${'<b>'.repeat(100_000)}`;

const line = (n) => `Src_PDO_Voltage${n}: ${n % 1000} ; ${'comment '.repeat(4)}\n`;

export function writeLargeText(folder, bytes) {
  const file = join(folder, 'large.txt');
  const lines = ['$VIF_Specification: "3.26"\nUSB_PD_Support: YES\n'];
  for (let size = 0, n = 1; size < bytes; ++n) {
    lines.push(line(n));
    size += lines.at(-1).length;
  }
  writeFileSync(file, lines.join(''));
  return file;
}

// An example with so many further components that it has that size.
export function writeLargeXml(folder, bytes) {
  const file = join(folder, 'large.xml');
  const text = readFileSync(example('two-port-laptop.xml'), 'utf8');
  const begin = text.indexOf('<vif:Component>');
  const end = text.lastIndexOf('</vif:Component>') + '</vif:Component>'.length;
  const components = text.slice(begin, end);
  const count = Math.ceil(bytes / components.length);
  writeFileSync(file, text.slice(0, begin) + components.repeat(count) + text.slice(end));
  return file;
}
