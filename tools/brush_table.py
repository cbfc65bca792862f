# SPDX-License-Identifier: MIT
"""What the files of brushes have in common: the table that they fill, and words for numbers of properties.

Sizes are for a canvas of about 2000 pixels. A value that is bytes, or a list of them, is an image.
"""

from dataclasses import dataclass

from brush_tips import felt

DISC, RECTANGLE = 1, 3     # texture types
SMUDGE, LIVE_FILL = 3, 4   # brush types
ERASE, MULTIPLY = 5, 8     # blend types

# Size never varies: without influences a dab has the middle of smallest and largest.
EVEN = {"minRadius": 1, "startRadius": 0, "endRadius": 0}

# Every preset keeps a tip for the second line; a small one where there is no such line.
_SECOND_TIP = felt(32)


@dataclass
class Brush:
    tags: list
    about: str
    settings: dict


BRUSHES = {}


def brush(name, tags, about, **settings):
    """Adds a brush; tags in one word each, the sentence ends with a dot."""
    BRUSHES[name] = Brush(tags.split(), about, {"slTextureImage": _SECOND_TIP, **settings})


def on_paper(image, depth, contrast=1.5, brightness=0.0, scale=1.0, control=(1, 0, 0)):
    """Settings of a brush whose light strokes catch the tops of a paper and whose firm ones fill its valleys."""
    return {"needMaskTexture": True, "maskImage": image, "maskScale": scale, "maskDepth": depth,
            "maskDepthControl": control, "maskContrast": contrast, "maskBrightness": brightness}
