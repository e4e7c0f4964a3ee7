// VIFs whose texts would do harm on a page if they were taken for more than text.
import { mkdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';

export const payloads = [
  '<script>alert(1)</script>',
  '"><img src=x onerror=alert(1)>',
  "'><svg onload=alert(1)>",
  'javascript:alert(1)',
  '</style><script>alert(1)</script>',
  '</title></head><body onload=alert(1)>',
  '</td></tr></table><iframe src="javascript:alert(1)"></iframe>',
  '-->',
  '<!--',
  ']]>',
  '<![CDATA[',
  '&lt;b&gt; &amp;amp; &#60;script&#62;',
  '" autofocus onfocus="alert(1)',
  '" style="position:fixed;inset:0',
  '<base href="https://example.invalid/"><link rel=stylesheet href="x.css">',
  '<meta http-equiv=refresh content="0;url=https://example.invalid/">',
  '<a href="https://example.invalid/" ping="https://example.invalid/">click</a>',
  '{{7*7}} ${7*7} `alert(1)`',
  'x'.repeat(5000),
  `${'\u6f22'.repeat(500)}`,
];

// Not valid in XML, and never shown as they are.
const controls = ['\u202eevil\u202c', '\u2066\u2067\u200f', '\ufeff', '\u0001\u0007\u001b[31m', '\u0085\u2028\u2029', '\u007f'];
const badUtf8 = Buffer.from([0xff, 0xfe, 0xc0, 0xaf, 0xed, 0xa0, 0x80, 0xf4, 0x90, 0x80, 0x80]);

const shortPower = `USB_PD_Support: YES
PD_Port_Type: 3
Num_Src_PDOs: 2
Src_PDO_Supply_Type1: 0
Src_PDO_Voltage1: 100
Src_PDO_Max_Current1: 300
Src_PDO_Supply_Type2: 9
Src_PDO_Voltage2: 99999999
Src_PDO_Max_Current2: 4294967295
`;

// Every payload as a value, as a description, as a name, and where there should be a declaration.
function hostileText() {
  const lines = [...payloads, ...controls].flatMap((text) => [
    `$Vendor_Name: "${text}"`,
    `$Model_Part_Number: "${text}" ; ${text}`,
    `Connector_Type: 2 ; ${text}`,
    `$Port_Label: "${text}"`,
    `${text}: 1`,
    text,
  ]);
  const bytes = ['$Vendor_Name: "', badUtf8, '"\n', 'TID: 5 ; ', badUtf8, '\n', '$TID: "a\0b"\n'];
  return Buffer.concat([
    Buffer.from(`$VIF_Specification: "3.26"\nVIF_Product_Type: 0\n${lines.join('\n')}\n${shortPower}`),
    ...bytes.map((part) => Buffer.from(part)),
  ]);
}

const escapeXml = (text) => text.replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);

const element = (name, text) => `<vif:${name}>${escapeXml(text)}</vif:${name}>`;
const described = (name, number, text) => `<vif:${name} value="${number}">${escapeXml(text)}</vif:${name}>`;

const hostileComponent = (text) => `<vif:Component>${element('Port_Label', text)}
${described('Connector_Type', 2, text)}
${described('USB_PD_Support', true, text)}
${described('PD_Port_Type', 3, text)}
${described('Num_Src_PDOs', 1, text)}
<vif:SrcPdoList><vif:SrcPDO>
${described('Src_PDO_Supply_Type', 0, text)}
${described('Src_PDO_Voltage', 100, text)}
${described('Src_PDO_Max_Current', 300, text)}
</vif:SrcPDO></vif:SrcPdoList></vif:Component>`;

const hostileXml = (text, components) => `<?xml version="1.0" encoding="utf-8"?>
<!-- ${text.replaceAll('--', '- -')} -->
<vif:VIF xmlns:vif="http://usb.org/VendorInfoFile.xsd">
<vif:VIF_Specification>3.26</vif:VIF_Specification>
<vif:VIF_App>${['Vendor', 'Name', 'Version'].map((name) => element(name, text)).join('')}</vif:VIF_App>
${['Vendor_Name', 'Model_Part_Number', 'Product_Revision', 'TID'].map((name) => element(name, text)).join('')}
${described('VIF_Product_Type', 0, text)}
${described('Certification_Type', 0, text)}
<vif:Product/>
${components.map(hostileComponent).join('')}
</vif:VIF>
`;

const write = (folder, name, content) => {
  const file = join(folder, name);
  writeFileSync(file, content);
  return file;
};

export const writeHostileText = (folder) => write(folder, 'hostile.txt', hostileText());

// The first has a component for each payload, the others have one in the place of the product's name.
export const writeHostileXml = (folder) =>
  [[payloads[0], payloads], ...payloads.slice(1, 8).map((text) => [text, [text]]), [payloads.at(-2), payloads.slice(-2)]].map(
    ([text, components], i) => write(folder, `hostile-${i}.xml`, hostileXml(text, components)),
  );

// A harmless VIF under hostile names.
export function writeHostileNames(folder, content) {
  const names = payloads.filter((text) => !text.includes('/') && Buffer.byteLength(text) < 200);
  mkdirSync(folder);
  return [...names, 'a\nb\u001b[31m\u202e', ' '].map((name) => write(folder, `${name}.txt`, content));
}
