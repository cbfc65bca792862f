<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Tables</name>
    <message>
        <source>A ball that skips a little and lays down more ink where it is pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A blunt greasy crayon that skips the paper&apos;s pits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A broad nib held at 45 degrees: thick and thin come of the direction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drawing pen of one width, whatever the hand does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fibre pen whose edge frays a little on the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fingertip that drags wet paint along.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flat wash brush with straight ends and a dark rim along both sides.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flexible steel nib that swells under pressure and runs out in points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A full pointed brush of ink, from a hair to a broad stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A hard square crayon, broad across its edge and thin along it, on laid paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A hard stick of chalk whose face breaks up over the tooth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A jet with too much air, in drops that stay apart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A natural sponge dabbed about, with pores of all sizes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A pen for the mouse: slow lines are wide and quick ones thin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A pointed round of sable: transparent colour that dries with a dark rim.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A rounded brush for soft-ended strokes that pick up their neighbours&apos; colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A slanted marker: broad one way, thin the other, transparent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A soft dry brush that blurs the border between colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A soft jet of colour that builds up with every pass.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A soft pencil; tilt it to shade with the side of its lead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A steel blade that lays a film of paint and scrapes the colours below along.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stick of charcoal: dusty when light, black where it is pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stiff brush with little paint, whose hairs each leave a scratch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A thin lead that is always sharp, for lines of one width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A transparent marker that darkens where strokes cross.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A well sharpened HB pencil on drawing paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A wide and faint mist for shadows and glows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acrylic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount of own colour on a smudge brush; 0 only moves what is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least three pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autumn Leaves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ballpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bleeding Wash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend fragment shader string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur of the live preview brush when its stroke is placed, in preview pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bristles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush colour; its alpha is not used, opacity and flow are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush tip: the tip images, or one that is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By how much</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calligraphy Nib</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chalk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chisel Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clumps of hairs as apart as a comb&apos;s teeth, for fur, grass and grain of wood.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour dropped into wet paper, which runs out in fingers as it likes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs at each place of the second line, whole; at most 64 are drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs at each place, whole; at most 64 are drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no soft edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance from dab to dab as a fraction of the dab&apos;s size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance from dab to dab of the second line as a fraction of the dab&apos;s size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance per pointer sample, in buffer pixels, that counts as fully fast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Divides the points handed to shape recognition.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a second line with a tip of its own and paints only where both are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws curves through the pointer samples instead of straight lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dry Bristle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge of a generated tip: 0 soft, 1 hard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fallen leaves of four kinds, between two colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Felt Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills what the pen goes around while it goes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flat Watercolour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow size by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gouache Dry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grainy Airbrush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hairs without paint that draw one colour into the other in fine streaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the dab relative to its width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How a stroke meets the canvas; any other number, as normal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as they are thinner, or both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far dabs scatter, in dab sizes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far that rim reaches into the stroke, in buffer pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 what lay under the dab before alone, 1 what they hold, at first loadQuantity of the brush colour, taking up more the wetter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the paper&apos;s heights decide: light dabs catch its tops alone, firm ones and full flow fill its valleys; 0 not at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the second line&apos;s dabs scatter, in dab sizes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much paint one dab lays down; dabs build up where they overlap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at all, 1 until nothing is left of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How quickly the measured speed follows the pointer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the second line&apos;s size follows radius; any other number, not at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on that number, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the flow, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the mixing, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the rotation, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the roundness, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the scatter, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the size, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink Spatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink flicked off a brush, in blots that burst and drops that fly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest size, as a fraction of radius.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of that ramp, in dabs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the start taper, in buffer pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the paper through more, or less, all over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower bound of the influenced flow, as a fraction of flow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower bound of the roundness.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meadow Grass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mechanical Pencil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrors every other dab left to right, at random.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrors every other dab top to bottom, at random.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrors the tip left to right.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrors the tip top to bottom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Much water and little pigment, in pools that dry unevenly and leave a rim.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multicolour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multicolour: the tip&apos;s own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No smudging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of dabs after which the paint has run out; 0 or 1 for never.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oil Filbert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oil Flat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oil Impasto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of a stroke as a whole, however often it crosses itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opaque matt paint, a little uneven in tone, that breaks up on rough paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint from a can: coarse drops all over the jet, more of them under pressure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paints through the paper given as the mask image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Knife</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper scraps of all colours, thrown wide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper, repeated over the canvas: white lets paint through, black and transparent hold it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pencil 2B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picks one of several tip images at random for each dab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel aligned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plastic paint from a bristle brush: covers at once and keeps the hairs&apos; furrows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer samples gathered before a segment is drawn: higher is steadier and lags more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ramp length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ramp up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ramps the mixed amount up over a smudge stroke&apos;s first dabs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random mixing of each dab toward the secondary colour, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random rotation of each dab, 0 to 1 for up to half a turn either way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random shrinking of dabs, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random upright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s brightness, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s hue, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s saturation, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of that number, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of the flow, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random variation of the roundness, 0 to 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recog point scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recogition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation of the tip in radians, counter-clockwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round Watercolour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roundness influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roundness jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rubs out all, to a clean edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs dry after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatters dabs all around instead of only across the stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatters the second line&apos;s dabs all around instead of only across the stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary colour, toward which the colour jitter mixes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size at the start of the stroke&apos;s taper, as a fraction of radius; 0 for no taper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size at the very end of the stroke, as a fraction of radius; 0 for no taper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size influences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size jitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of a full dab across, in buffer pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of one paper tile on the canvas, relative to the mask image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the second line&apos;s dabs, in buffer pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smudge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smudge Finger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Airbrush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Blender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Pastel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft pastel: powder that fills the tooth and blooms under pressure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source of one of the blend programs, which selects its blend type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sponge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spray Can</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steadying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steepness of the paper&apos;s heights: above 1 its grain has harder edges, 0 is smooth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches off the smudge behaviour of brush type 3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes a little away with each pass, without an edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Technical Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textured Gouache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That difference in buffer pixels, or that ratio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rest of the paint on a brush: broken strokes of single hairs over rough paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thick paint from a hog&apos;s hair brush, which mixes with what is wet below it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thickness of the ring tip in pixels, or width to height of the rectangle tip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin hairs spread wide, for foliage, fur and hair.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thinned flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip image of the second line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip proportion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True Blender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tufts of grass that stand upright along the stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns the tip by a random angle at the start of every stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns the tip into the direction of the stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper bound of the influenced flow, as a fraction of flow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watery Wash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wax Crayon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wet edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wetness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other number, dabs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole pixels without a soft edge, for pixel art and masks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>acrylic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>airbrush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>blender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>chalk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charcoal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crayon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gouache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pastel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pencil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smudge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tilt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>watercolour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter</name>
    <message>
        <source>a canvas is at least 1 x 1 pixel large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a side has at most %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a canvas has at most %3 million</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not an image of a known kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the canvas cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush (*.xbf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Brushes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brushes (*.xbf %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to paint with; the log says what is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Autosave</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushPanel</name>
    <message>
        <source>Search settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives every brush setting what the chosen brush has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives every brush setting its default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting is called so.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushRow</name>
    <message>
        <source>Reset %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasStatus</name>
    <message>
        <source>Shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What paints this picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasViewport</name>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ChoiceEditor</name>
    <message>
        <source>Other (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ControlEditor</name>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Document</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ImagesEditor</name>
    <message>
        <source>Load…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: at most %2 images are used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LayerPanel</name>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strokes change its colours alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend mode of the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the layer up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the layer down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge with the layer below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked layers are seen; a double click names one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LeftPicturesDialog</name>
    <message>
        <source>Recover Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo steps where they are left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without undo steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one undo step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 undo steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3, %4 on the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this picture for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be deleted: it is in use, or the disk refuses.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::MainWindow</name>
    <message>
        <source>The graphics card cannot paint this picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had from this graphics driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here, its undo steps are not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be recovered: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image could not be placed; the log says why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the layers as one picture?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file shows all of them together. They stay here as long as this picture is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Place Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover Pictures…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No run has left a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo &amp;Steps…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keys…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paint with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Graphics Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds for pictures that are made or opened from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fingers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the Canvas Once a &amp;Pen Was Seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always &amp;Move the Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Al&amp;ways Paint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size by Moving the Pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So&amp;fter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Harder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Eyedropper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reco&amp;gnise Shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strokes become the line, polygon, ellipse, arc or arrow they are meant as (Shift+R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset to Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Whole Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk takes no undo steps: save, as a crash would lose this picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No shape was recognised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps that can be undone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strokes become shapes; what is none is taken away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strokes stay as they are drawn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::NewCanvasDialog</name>
    <message>
        <source>New Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes about %1 of memory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetBrowser</name>
    <message>
        <source>No brush is called so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as &amp;New Brush…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite with Present Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Brushes…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets Set the &amp;Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search brushes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the present settings as a new brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More to do with the chosen brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as New Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the brush &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It takes the present settings, and what it was is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the brush &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the file &quot;%1&quot; with its %2 brushes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of &quot;%1&quot; could not be carried over:
%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetDelegate</name>
    <message>
        <source>damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no preset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetLibrary</name>
    <message>
        <source>it does not hold this brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no memory for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable brush file: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListModel</name>
    <message>
        <source>Every setting at its default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SampleStroke</name>
    <message>
        <source>A stroke with the present brush</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShortcutsDialog</name>
    <message>
        <source>&amp;Assign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Usual Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All &amp;Usual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;, which would have none then.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
