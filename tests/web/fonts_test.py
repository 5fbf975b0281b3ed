#!/usr/bin/python3
"""The served fonts against the system's DejaVu Sans, which the server measures text with:
each WOFF2 subset keeps the family, the vertical metrics and every advance width, and maps every
character of the interface texts and of the app's languages' alphabets.

    fonts_test.py WEB_DIR SOURCE_DIR
"""
import pathlib
import sys
import unittest

from fontTools.ttLib import TTFont

SYSTEM = pathlib.Path('/usr/share/fonts/truetype/dejavu')
FACES = {'DejaVuSans': 'Book', 'DejaVuSans-Bold': 'Bold'}
ALPHABETS = (
    'АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдеёжзийклмнопрстуфхцчшщъыьэюя'
    'ÄÖÜäöüßẞ' 'ÀÂÆÇÉÈÊËÎÏÔŒÙÛÜŸàâæçéèêëîïôœùûüÿ' '«»„“”–—…№₽×°'
)
# Vertical metrics decide line heights in the browser.
VERTICAL = {
    'hhea': ('ascent', 'descent', 'lineGap'),
    'OS/2': ('sTypoAscender', 'sTypoDescender', 'sTypoLineGap', 'usWinAscent', 'usWinDescent'),
    'head': ('unitsPerEm',),
}
TEXT_SOURCES = ('resources/translate/translate.tsv', 'resources/db/*.sql')


def interface_characters(source_dir):
    chars = set(ALPHABETS)
    for pattern in TEXT_SOURCES:
        for path in sorted(source_dir.glob(pattern)):
            chars.update(c for c in path.read_text(encoding='utf-8') if ord(c) > 0x7E)
    return chars


class ServedFontTest(unittest.TestCase):
    web_dir = None
    source_dir = None

    def faces(self):
        """[name, served font, system font, style name] of each face."""
        return [(name, TTFont(self.web_dir / 'fonts' / f'{name}.woff2'), TTFont(SYSTEM / f'{name}.ttf'), style)
                for name, style in FACES.items()]

    def test_is_woff2_of_the_same_family(self):
        for name, served, _, style in self.faces():
            with self.subTest(font=name):
                self.assertEqual(served.flavor, 'woff2')
                self.assertEqual(served['name'].getDebugName(1), 'DejaVu Sans')
                self.assertEqual(served['name'].getDebugName(2), style)

    def test_keeps_vertical_metrics(self):
        for name, served, system, _ in self.faces():
            for table, fields in VERTICAL.items():
                for field in fields:
                    with self.subTest(font=name, field=f'{table}.{field}'):
                        self.assertEqual(getattr(served[table], field), getattr(system[table], field))

    def test_maps_interface_characters_with_their_widths(self):
        chars = interface_characters(self.source_dir)
        for name, served, system, _ in self.faces():
            served_map, system_map = served.getBestCmap(), system.getBestCmap()
            for char in sorted(c for c in chars if ord(c) in system_map):
                with self.subTest(font=name, char=f'{char} U+{ord(char):04X}'):
                    glyph = served_map.get(ord(char))
                    self.assertIsNotNone(glyph, 'missing')
                    self.assertEqual(served['hmtx'][glyph][0], system['hmtx'][system_map[ord(char)]][0], 'advance')

    def test_keeps_kerning(self):
        for name, served, _, _ in self.faces():
            with self.subTest(font=name):
                tags = {record.FeatureTag for record in served['GPOS'].table.FeatureList.FeatureRecord}
                self.assertIn('kern', tags)


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    ServedFontTest.web_dir = pathlib.Path(sys.argv[1])
    ServedFontTest.source_dir = pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1])
