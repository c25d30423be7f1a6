"""The 30 images of the category tree, as 16x16 text grids over one shared palette.

Position in TREE_IMAGES is the image index; a tree row refers to its image by that number.  Light comes from
the top left: the lighter tone of a colour lies on upper and left edges, the darker one on lower and right edges.
"""

# One letter per colour.  "." is the mask: the image list makes it transparent, so no motif may contain that colour.
MASK_COLOUR = (255, 0, 0)
PALETTE = {
    ".": MASK_COLOUR,
    "k": (30, 38, 56),      # outline, nearly black
    "f": (66, 78, 108),     # cast iron
    "w": (255, 255, 255),   # white, then greys from light to dark
    "l": (226, 232, 242),
    "g": (178, 188, 206),
    "d": (118, 130, 154),
    "p": (198, 226, 254),   # blues from light to dark
    "c": (114, 174, 246),
    "b": (46, 106, 210),
    "n": (26, 58, 134),
    "h": (255, 242, 184),   # yellow to brown
    "y": (250, 202, 68),
    "a": (204, 134, 30),
    "o": (114, 68, 22),
    "i": (246, 216, 168),   # cardboard, wood and leather
    "t": (220, 164, 100),
    "m": (186, 240, 174),   # greens
    "e": (72, 184, 84),
    "v": (28, 112, 52),
    "s": (244, 138, 116),   # reds, none of them the mask
    "r": (200, 50, 36),
    "x": (132, 28, 26),
    "u": (124, 84, 180),    # violet
}

TREE_IMAGES = [
    # A calculator and a pencil beside it.
    ("Accessories", """
................
.kkkkkkkkkkkk...
.kwwwwwwwwwlkkk.
.kwvvvvvvvvgksrk
.kwvmmmmmmvgklgk
.kwvmmmmmmvgkyak
.kwvvvvvvvvgkyak
.kwllllllllgkyak
.kwbblbblrrgkyak
.kwllllllllgkyak
.kwddlddlddgkyak
.kwllllllllgkyak
.kwddlddlddgkhik
.kwllllllllgkkk.
.klggggggggdkk..
.kkkkkkkkkkkk...
"""),
    ("Command Processor", """
................
kkkkkkkkkkkkkkkk
kccccccccccccbnk
kcbbbbbbbbpbpbnk
kllllllllllllllk
klkkkkkkkkkkkkgk
klkkkkkkkkkkkkgk
klkwwkkkkkkkkkgk
klkkwwkkkkkkkkgk
klkkkwwkkkkkkkgk
klkkwwkkkkkkkkgk
klkwwkwwwwkkkkgk
klkkkkkkkkkkkkgk
klggggggggggggdk
kkkkkkkkkkkkkkkk
................
"""),
    # The tweak: one slider, kept quiet because it stands in front of almost every row.
    ("tweak", """
................
................
................
................
......nnnnn.....
......npccn.....
......ncbbn.....
..ddddncbbndddd.
..ggggncbbngggg.
......ncbbn.....
.......nbn......
........n.......
................
................
................
................
"""),
    # A doctor's bag.
    ("Dr Watson", """
................
.....kkkkkk.....
....kaakkaok....
....kak..kok....
..kkkkkkkkkkkk..
.kiiiiiiiiiittk.
kitttttttttttaak
kittttwwwwttttak
kitttwwrrwwtttak
kttttwrrrrwttaak
kttttwrrrrwttaak
kttttwwrrwwtaaak
kttttawwwwaaaaok
kttaaaaaaaaaaook
.kooooooooooook.
..kkkkkkkkkkkk..
"""),
    # A key tree: one root and two branches.
    ("Registry Editor", """
kkkkkkk.........
kpcccbk.........
kcbbbnk.........
kbbbnnk.........
kkkkkkk.kkkkkkkk
...k....khhyyyak
...kkkkkkhyyyyak
...k....kyyyaaak
...k....kkkkkkkk
...k............
...k............
...k....kkkkkkkk
...k....kmmeeevk
...kkkkkkmeeeevk
........keeevvvk
........kkkkkkkk
"""),
    ("Task Scheduler", """
..kk....kk......
kkwdkkkkwdkk....
ksrrrrrrrrrk....
krrrrrrrrrxk....
kkkkkkkkkkkk....
kwwwwwwwwwlk....
kwddwddwddlk....
kwwwwwwwkkkkkk..
kwddwddkpppwwlk.
kwwwwwkppwkwwwlk
kwddwwkpwwkwwwgk
kllllwkpwwkkkwgk
kkkkkkkwwwwwwwgk
......kwwwwwwlgk
.......klwwlggk.
........kkkkkk..
"""),
    ("Windows Installer", """
......kkkk......
......kmek......
......kmek......
...kkkkmekkkk...
....kmeeeevk....
.....kmeevk.....
..kkk.kevk.kkk..
.kiitkkkkkkttak.
kiittkooookttaak
kkkkkkkkkkkkkkkk
.kitttttttttaak.
.kitttwwwwttaak.
.kitttwllwttaak.
.kttttttttaaaak.
.kaaaaaaaaaaook.
.kkkkkkkkkkkkkk.
"""),
    ("Appearance", """
................
.....kkkkkk.....
...kkiiiiiikk...
..kiiiirriiiitk.
.kiieeirriibbitk
.kiieeiiiiibbttk
kiiiiiiiiiiiittk
kiyyiiiiikkkttk.
kiyyiiitkk..kk..
kiiiiiitkykk....
kiiuuiitkyyakk..
.kiuuiittkkaook.
.kttiiittakkaook
..kttttttak.kkok
...kktttakk...kk
.....kkkk.......
"""),
    ("Effects and Menus", """
kkkkkkkkkkkkkkk.
kbbbbblllllllgk.
kbwwwblddlddlgk.
kbbbbblllllllgk.
kkkkkkkkkkkkkkk.
kwwwwwwkwwlk....
kwddddwkkwlk....
kwwwwwwkwkkk....
kbbbbbbkwwkk....
kbwwwwbkwwwk....
knnnnnnkwwwwk...
kwwwwwwkwwwwwk..
kwddddwkwwwkkkk.
kllllllkkkwwk...
kkkkkkkkkkkwwk..
...........kkk..
"""),
    ("Fonts and Icons", """
.....kkkk.......
....kccbnk......
....kcbbnk......
...kcbbbbnk.....
...kcbkkbnk.....
..kccbkkbbnk....
..kcbk..kbnk....
.kccbkkkkkkkkkkk
.kcbbbbkpppypppk
kccbkkkkpppypppk
kcbk...kyyyyyyyk
kcbk...kpyyyyypk
kkkk...kppyyyppk
.......kpyayaypk
.......kpapppapk
.......kkkkkkkkk
"""),
    ("Desktop", """
kkkkkkkkkkkkkkkk
kwllllllllllllgk
klkkkkkkkkkkkkgk
klkppppppppppkgk
klkpyyppppppckgk
klkpyypppcccckgk
klkpppccccccckgk
klkcccceeeccckgk
klkcmeeeeeeeckgk
klkeeeevvveeekgk
klkkkkkkkkkkkkgk
kgggggggggggegdk
kkkkkkkkkkkkkkkk
.....kgggddk....
...kklllgggdkk..
...kkkkkkkkkkk..
"""),
    # A compass.
    ("Explorer", """
.....kkkkkk.....
...kkhhhyyykk...
..khyyllllyyak..
.khylwwwwwwraak.
.khlwwwwwwrrgak.
khylwwwwwrrrwgak
khlwwwwwrrrwwgak
kylwwwwrrrwwwgak
kylwwwbbbwwwwgak
kylwwbbbwwwwwgak
kyylbbbwwwwwgaak
.kylbbwwwwwwgak.
.kyabwwwwwwgaak.
..kyaaggggaaak..
...kkaaaaaakk...
.....kkkkkk.....
"""),
    ("Search", """
....kkkk........
..kkllggkk......
.klgppppgdk.....
.kgpwwpccdk.....
klpwwpccccgk....
klpwpcccccdk....
kgppcccccpdk....
kgpcccccppdk....
.kgcccccpdk.....
.kdgccppgdkk....
..kkddddkkhyk...
....kkkkkyyyak..
.........kyyaak.
..........kyaaok
...........kaook
............kkk.
"""),
    # A disk drive.
    ("File System", """
................
................
..kkkkkkkkkkkk..
..kwwwwwwwwllk..
.kwwlllllllllgk.
.kwllllllllllgk.
kwlllllllllllggk
kllllllllllggggk
kkkkkkkkkkkkkkkk
kwgggggggggggddk
kgkkkkkkkkgggmdk
kgddddddddggevdk
kggggggggggggddk
kddddddddddddddk
.kkkkkkkkkkkkkk.
................
"""),
    # A memory module.
    ("Caching and Memory", """
................
................
................
kkkkkkkkkkkkkkkk
kmmmmmmmmmmmmmek
kmkkkekkkekkkevk
kmkdkekdkekdkevk
kmkkkekkkekkkevk
kmkkkekkkekkkevk
kmeeeeeeeeeeeevk
keeeeeevveeeevvk
khkhkhkkkkhkhkhk
kykykyk..kykykyk
kkkkkkk..kkkkkkk
................
................
"""),
    ("Files and Shortcuts", """
...kkkkkkkk.....
...kwwwwwwkk....
...kwwwwwwkgk...
...kwdddwwklgk..
...kwwwwwwkkkkk.
...kwddddwwwwlk.
...kwwwwwwwwwlk.
kkkkkkkkkddddlk.
kccccccbkwwwwlk.
kcbwwwwbkddddlk.
kcbbbwwbkwwwwlk.
kcbbwwwnkddddlk.
kcbwwbwnkwwwwlk.
kbwwbbbnkllllgk.
kbnnnnnnkkkkkkk.
kkkkkkkkk.......
"""),
    ("Maintenance", """
..........kkk...
........kkwlk...
.......kwwlk....
.......kwlk...kk
.......kwlgk.kgk
.......kwlggkggk
......kwllgggggk
.....kwllggggdk.
....kwllgkkkkk..
...kwllgk.......
..kwllgk........
.kwllgk.........
kwllgk..........
klkkgk..........
kgkkdk..........
.kkkk...........
"""),
    ("Login and Authentication", """
................
................
..kkkk..........
.khhhyk.........
khhyyyak........
khykkyakkkkkkkkk
khyk.kyhhhhhhhyk
kyyk.kyyyyyyyyak
kyykkyakkyakyakk
kyyyyyak.kyakyak
.kyyaak..kkkkyak
..kkkk.......kkk
................
................
................
................
"""),
    ("Start Menu and Taskbar", """
kkkkkkkkkkkk....
kcbwwwwwwwlk....
kcbwyywdddlk....
kcbwyawwwwlk....
kcbwwwwwwwlk....
kbbweewdddlk....
kbnwevwwwwlk....
kbnwwwwwwwlk....
kbnwsrwdddlk....
kbnwrrwwwwlk....
kkkkkkkkkkkkkkkk
kmeeevkcccccccck
keeeevkbbbbbbbbk
keeevvkbbbbbbbnk
kvvvvvknnnnnnnnk
kkkkkkkkkkkkkkkk
"""),
    ("Documents and Folders", """
.......kkkkkk...
.......kwwwwkk..
..kkkk.kwddwkgk.
.khhhykkwwwwkkk.
.khyyyykwdddwlk.
.khyyyykwwwwwlk.
.kyyyyykwddddlk.
kkkkkkkkkkkkkkkk
khhhhhhhhhhhhyyk
khyyyyyyyyyyyyak
khyyyyyyyyyyyyak
kyyyyyyyyyyyyaak
kyyyyyyyyyyyaaak
kyyyaaaaaaaaaaak
kaaaaaaaaaaaaook
kkkkkkkkkkkkkkkk
"""),
    ("Taskbar", """
................
................
................
................
kkkkkkkkkkkkkkkk
kmmmekccccccknnk
kmeeekwllllgknyk
kewwekldddlgknyk
kewwvkllllggkpnk
kevvvkgggggdkpnk
kvvvvkbbbbbbknnk
kkkkkkkkkkkkkkkk
................
................
................
................
"""),
    ("Start up and Shutdown", """
.....kkkkkk.....
...kksssrrrkk...
..kssrrwwrrrrk..
.kssrrrwwrrrrrk.
.ksrrwrwwrwrrrk.
ksrrwwrwwrwwrrxk
ksrwwrrwwrrwwrxk
ksrwwrrwwrrwwrxk
krrwwrrrrrrwwrxk
krrwwrrrrrrwwrxk
krrrwwrrrrwwrrxk
.krrrwwwwwwrrxk.
.krrrrwwwwrrrxk.
..krrrrrrrrxxk..
...kkxxxxxxkk...
.....kkkkkk.....
"""),
    ("System", """
......kkkk......
..kk..kpck..kk..
.kpckkkpckkkpck.
.kcpcccccccccbk.
..kcpccccccbbk..
..kccckkkkcbbk..
kkkcck....kbbkkk
kppcck....kbbcck
kcccck....kbbbnk
kkkcck....kbnkkk
..kcccckkkkbbnk.
..kccccbbbbbnk..
.kcbbbbbbbbbnnk.
.kbnkkkbnkkkbnk.
..kk..kbnk..kk..
......kkkk......
"""),
    ("Scripts", """
...kkkkkkkkkkk..
..khhhhhhhhhiyk.
.khykhhhhhhhykyk
.kykkhhhhhhhykak
.kkkkhoooohhykk.
...khhhhhhhhyk..
...khooooohhyk..
...khhhhhhhhyk..
...khoooohhhyk..
...khhhhhhhhyk..
.kkkhooooohhyk..
khhkkkkkkkkkkkk.
khyykhhhhhhhhyyk
kyykyyyyyyyyyyak
.kkkaaaaaaaaaak.
...kkkkkkkkkkk..
"""),
    # A gear that runs.
    ("Services", """
.....kkk........
..kk.khk.kk.....
.khhkkhkkhyk....
.khhyyyyyyak....
..kyyyyyyak.....
kkkyykkkyakkk...
khhyyk.kyyyak...
kkkyykkkykkkkk..
..kyyyyykmmmeek.
.kyyyyykmewweevk
.kyakkakmewwwevk
..kk.kakeewwwwvk
.....kkkeewwwevk
.......keewwevvk
........keevvvk.
.........kkkkk..
"""),
    ("Windows File Checker", """
.kkkkkkkkk......
.kwwwwwwwkk.....
.kwwwwwwwkgk....
.kwddddwwklgk...
.kwwwwwwwkkkkk..
.kwddddddwwwwkk.
.kwwwwwwwwwwkmek
.kwddddddwwkmeek
.kwwwwkkwwkmeek.
.kwddkmekkmevk..
.kwwwkmeemevkk..
.kwdddkeeevklk..
.kwwwwwkevkwlk..
.kwddddwkkwwlk..
.kllllllllllgk..
.kkkkkkkkkkkkk..
"""),
    ("Troubleshooting", """
.......kk.......
......khyk......
......khyk......
.....khyyak.....
.....khkkak.....
....khykkyak....
....khykkyak....
...khyykkyyak...
...khyykkyyak...
..khyyykkyyyak..
..khyyyyyyyyak..
.khyyyykkyyyyak.
.khyyyykkyyyyak.
khyyyyyyyyyyyaak
kyaaaaaaaaaaaaok
.kkkkkkkkkkkkkk.
"""),
    # A bomb about to go off.
    ("Crash Control", """
.............a..
......ooo..a.y.a
.....o...o..yhy.
....kkkk..oahwha
....kgfk....yhy.
...kkkkkk..a.y.a
.kkffffffkk..a..
.kfgwgffffk.....
kffwgffffffk....
kffgfffffffk....
kfffffffffkk....
kfffffffffkk....
kffffffffkkk....
.kffffffkkk.....
.kkkffkkkkk.....
...kkkkkk.......
"""),
    ("Logging", """
...kkkkkkkkkkk..
...kwwswwwwwlk..
.dgldwsbbbbwlk..
...kwwswwwwwlk..
.dgldwsbbbbwlk..
...kwwswwwwwkkk.
.dgldwsbbbwkssk.
...kwwswwwkhyrk.
.dgldwsbbkhyak..
...kwwswkhyakk..
.dgldwskhyaklk..
...kwwskiakwlk..
.dgldwskkkwwlk..
...kwwswwwwwlk..
...kllllllllgk..
...kkkkkkkkkkk..
"""),
    ("Repair", """
................
....kkkkkkk.kkk.
..kkwlllllgkwlgk
.kwllggggggglggk
kwgggddddddkgddk
kgkk.kitak..kkk.
.k...kitak......
.....kitak......
.....kitak......
.....kitak......
.....ksrxk......
.....ksrxk......
.....ksrxk......
.....ksrxk......
.....krxxk......
.....kkkkk......
"""),
]
