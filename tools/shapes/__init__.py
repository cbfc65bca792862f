# SPDX-License-Identifier: MIT
"""What tools/shape_strokes.py is made of."""
