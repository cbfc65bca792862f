<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Dabpainter</source>
        <translation>Über Dabpainter</translation>
    </message>
    <message>
        <source>Dabpainter %1 paints with natural-media brushes. Whoever reports a fault may add this:</source>
        <translation>Dabpainter %1 malt mit Naturpinseln. Wer einen Fehler meldet, kann dies beifügen:</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Painter&apos;s Guide</source>
        <translation>Anleitung für Maler</translation>
    </message>
</context>
<context>
    <name>Tables</name>
    <message>
        <source>A ball that skips a little and lays down more ink where it is pressed.</source>
        <translation>Eine Kugel, die leicht aussetzt und unter Druck mehr Farbe abgibt.</translation>
    </message>
    <message>
        <source>A blunt greasy crayon that skips the paper&apos;s pits.</source>
        <translation>Eine stumpfe, fettige Wachskreide, die die Vertiefungen des Papiers auslässt.</translation>
    </message>
    <message>
        <source>A broad nib held at 45 degrees: thick and thin come of the direction.</source>
        <translation>Eine im Winkel von 45 Grad gehaltene Breitfeder: Dick und Dünn ergeben sich aus der Richtung.</translation>
    </message>
    <message>
        <source>A drawing pen of one width, whatever the hand does.</source>
        <translation>Ein Zeichenstift mit einer einzigen Strichbreite, was auch immer die Hand tut.</translation>
    </message>
    <message>
        <source>A fibre pen whose edge frays a little on the paper.</source>
        <translation>Ein Faserstift, dessen Rand auf dem Papier etwas ausfranst.</translation>
    </message>
    <message>
        <source>A fingertip that drags wet paint along.</source>
        <translation>Eine Fingerspitze, die nasse Farbe mitzieht.</translation>
    </message>
    <message>
        <source>A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.</source>
        <translation>Ein Flachpinsel mit scharfen Kanten für Farbflächen, der Schlieren der berührten Farben mitzieht.</translation>
    </message>
    <message>
        <source>A flat wash brush with straight ends and a dark rim along both sides.</source>
        <translation>Ein flacher Lavierpinsel mit geraden Enden und dunklem Rand an beiden Seiten.</translation>
    </message>
    <message>
        <source>A flexible steel nib that swells under pressure and runs out in points.</source>
        <translation>Eine biegsame Stahlfeder, die unter Druck anschwillt und spitz ausläuft.</translation>
    </message>
    <message>
        <source>A full pointed brush of ink, from a hair to a broad stroke.</source>
        <translation>Ein voller Spitzpinsel mit Tusche, vom haarfeinen bis zum breiten Strich.</translation>
    </message>
    <message>
        <source>A hard square crayon, broad across its edge and thin along it, on laid paper.</source>
        <translation>Eine harte Vierkantkreide auf geripptem Papier: breit quer zur Kante, dünn entlang der Kante.</translation>
    </message>
    <message>
        <source>A hard stick of chalk whose face breaks up over the tooth.</source>
        <translation>Ein hartes Stück Kreide, dessen Fläche auf dem Papierkorn aufbricht.</translation>
    </message>
    <message>
        <source>A jet with too much air, in drops that stay apart.</source>
        <translation>Ein Strahl mit zu viel Luft, in Tropfen, die getrennt bleiben.</translation>
    </message>
    <message>
        <source>A natural sponge dabbed about, with pores of all sizes.</source>
        <translation>Ein getupfter Naturschwamm mit Poren aller Größen.</translation>
    </message>
    <message>
        <source>A pen for the mouse: slow lines are wide and quick ones thin.</source>
        <translation>Eine Feder für die Maus: Langsame Linien werden breit, schnelle dünn.</translation>
    </message>
    <message>
        <source>A pointed round of sable: transparent colour that dries with a dark rim.</source>
        <translation>Ein spitzer Rundpinsel aus Marderhaar: transparente Farbe, die mit dunklem Rand trocknet.</translation>
    </message>
    <message>
        <source>A rounded brush for soft-ended strokes that pick up their neighbours&apos; colour.</source>
        <translation>Ein gerundeter Pinsel für Striche mit weichen Enden, die die Farbe der Nachbarn aufnehmen.</translation>
    </message>
    <message>
        <source>A slanted marker: broad one way, thin the other, transparent.</source>
        <translation>Ein abgeschrägter Marker: in einer Richtung breit, in der anderen dünn, transparent.</translation>
    </message>
    <message>
        <source>A soft dry brush that blurs the border between colours.</source>
        <translation>Ein weicher trockener Pinsel, der die Grenze zwischen Farben verwischt.</translation>
    </message>
    <message>
        <source>A soft jet of colour that builds up with every pass.</source>
        <translation>Ein weicher Farbstrahl, der sich mit jedem Zug aufbaut.</translation>
    </message>
    <message>
        <source>A soft pencil; tilt it to shade with the side of its lead.</source>
        <translation>Ein weicher Bleistift; geneigt schattiert er mit der Seite der Mine.</translation>
    </message>
    <message>
        <source>A steel blade that lays a film of paint and scrapes the colours below along.</source>
        <translation>Eine Stahlklinge, die einen Farbfilm aufträgt und die Farben darunter mitschabt.</translation>
    </message>
    <message>
        <source>A stick of charcoal: dusty when light, black where it is pressed.</source>
        <translation>Ein Stück Kohle: leicht geführt staubig, unter Druck schwarz.</translation>
    </message>
    <message>
        <source>A stiff brush with little paint, whose hairs each leave a scratch.</source>
        <translation>Ein steifer Pinsel mit wenig Farbe, dessen Haare je einen Kratzer hinterlassen.</translation>
    </message>
    <message>
        <source>A thin lead that is always sharp, for lines of one width.</source>
        <translation>Eine dünne, immer spitze Mine für Linien gleicher Breite.</translation>
    </message>
    <message>
        <source>A transparent marker that darkens where strokes cross.</source>
        <translation>Ein transparenter Marker, der dunkler wird, wo sich Striche kreuzen.</translation>
    </message>
    <message>
        <source>A well sharpened HB pencil on drawing paper.</source>
        <translation>Ein gut gespitzter HB-Bleistift auf Zeichenpapier.</translation>
    </message>
    <message>
        <source>A wide and faint mist for shadows and glows.</source>
        <translation>Ein breiter, zarter Nebel für Schatten und Lichtschein.</translation>
    </message>
    <message>
        <source>Acrylic</source>
        <translation>Acryl</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>All around</source>
        <translation>Rundum</translation>
    </message>
    <message>
        <source>Amount of own colour on a smudge brush; 0 only moves what is there.</source>
        <translation>Menge der eigenen Farbe eines Wischpinsels; bei 0 bewegt er nur, was da ist.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Angle influences</source>
        <translation>Winkeleinflüsse</translation>
    </message>
    <message>
        <source>Angle jitter</source>
        <translation>Winkel-Jitter</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Wie sie sind</translation>
    </message>
    <message>
        <source>At least three pixels</source>
        <translation>Mindestens drei Pixel</translation>
    </message>
    <message>
        <source>Autumn Leaves</source>
        <translation>Herbstlaub</translation>
    </message>
    <message>
        <source>Ballpoint</source>
        <translation>Kugelschreiber</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Dahinter</translation>
    </message>
    <message>
        <source>Bleeding Wash</source>
        <translation>Verlaufende Lavierung</translation>
    </message>
    <message>
        <source>Blend fragment shader string</source>
        <translation>Fragment-Shader-Text des Mischens</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Blur of the live preview brush when its stroke is placed, in preview pixels.</source>
        <translation>Unschärfe des Live-Vorschaupinsels beim Ablegen des Strichs, in Vorschaupixeln.</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beides</translation>
    </message>
    <message>
        <source>Brightness jitter</source>
        <translation>Helligkeits-Jitter</translation>
    </message>
    <message>
        <source>Bristles</source>
        <translation>Borsten</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Brush Pen</source>
        <translation>Pinselstift</translation>
    </message>
    <message>
        <source>Brush colour; its alpha is not used, opacity and flow are.</source>
        <translation>Pinselfarbe; statt ihres Alphawerts gelten Deckkraft und Fluss.</translation>
    </message>
    <message>
        <source>Brush tip: the tip images, or one that is drawn.</source>
        <translation>Pinselspitze: die Spitzenbilder oder eine gezeichnete.</translation>
    </message>
    <message>
        <source>By how much</source>
        <translation>Um wie viel</translation>
    </message>
    <message>
        <source>Calligraphy Nib</source>
        <translation>Kalligrafiefeder</translation>
    </message>
    <message>
        <source>Canvas colour</source>
        <translation>Leinwandfarbe</translation>
    </message>
    <message>
        <source>Chalk</source>
        <translation>Kreide</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Kohle</translation>
    </message>
    <message>
        <source>Chisel Marker</source>
        <translation>Keilmarker</translation>
    </message>
    <message>
        <source>Clumps of hairs as apart as a comb&apos;s teeth, for fur, grass and grain of wood.</source>
        <translation>Haarbüschel, so weit auseinander wie die Zähne eines Kamms, für Fell, Gras und Holzmaserung.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colour dropped into wet paper, which runs out in fingers as it likes.</source>
        <translation>In nasses Papier getropfte Farbe, die in Fingern ausläuft, wie sie will.</translation>
    </message>
    <message>
        <source>Colour influences</source>
        <translation>Farbeinflüsse</translation>
    </message>
    <message>
        <source>Colour jitter</source>
        <translation>Farb-Jitter</translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation>Konfetti</translation>
    </message>
    <message>
        <source>Conte</source>
        <translation>Conté</translation>
    </message>
    <message>
        <source>Dabs</source>
        <translation>Tupfer</translation>
    </message>
    <message>
        <source>Dabs at each place of the second line, whole; at most 64 are drawn.</source>
        <translation>Tupfer an jeder Stelle der zweiten Linie, ganzzahlig; höchstens 64 werden gezeichnet.</translation>
    </message>
    <message>
        <source>Dabs at each place, whole; at most 64 are drawn.</source>
        <translation>Tupfer an jeder Stelle, ganzzahlig; höchstens 64 werden gezeichnet.</translation>
    </message>
    <message>
        <source>Dabs influences</source>
        <translation>Tupfereinflüsse</translation>
    </message>
    <message>
        <source>Dabs jitter</source>
        <translation>Tupfer-Jitter</translation>
    </message>
    <message>
        <source>Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no soft edge.</source>
        <translation>Tupfer liegen gerade auf ganzen Pixeln und sind ganze Pixel groß, sodass eckige Spitzen keinen weichen Rand haben.</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Depth influences</source>
        <translation>Tiefeneinflüsse</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Distance from dab to dab as a fraction of the dab&apos;s size.</source>
        <translation>Abstand von Tupfer zu Tupfer als Anteil der Tupfergröße.</translation>
    </message>
    <message>
        <source>Distance from dab to dab of the second line as a fraction of the dab&apos;s size.</source>
        <translation>Abstand von Tupfer zu Tupfer der zweiten Linie als Anteil der Tupfergröße.</translation>
    </message>
    <message>
        <source>Distance per pointer sample, in buffer pixels, that counts as fully fast.</source>
        <translation>Weg je Zeigermesspunkt in Bildpixeln, der als volles Tempo gilt.</translation>
    </message>
    <message>
        <source>Divides the points handed to shape recognition.</source>
        <translation>Teilt die Punkte, die an die Formerkennung gehen.</translation>
    </message>
    <message>
        <source>Draws a second line with a tip of its own and paints only where both are.</source>
        <translation>Zeichnet eine zweite Linie mit eigener Spitze und malt nur, wo beide sind.</translation>
    </message>
    <message>
        <source>Draws curves through the pointer samples instead of straight lines.</source>
        <translation>Zeichnet Kurven statt Geraden durch die Messpunkte des Zeigers.</translation>
    </message>
    <message>
        <source>Dry Bristle</source>
        <translation>Trockene Borsten</translation>
    </message>
    <message>
        <source>Edge of a generated tip: 0 soft, 1 hard.</source>
        <translation>Rand einer erzeugten Spitze: 0 weich, 1 hart.</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>End size</source>
        <translation>Endgröße</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Even spacing</source>
        <translation>Gleichmäßig</translation>
    </message>
    <message>
        <source>Fallen leaves of four kinds, between two colours.</source>
        <translation>Gefallene Blätter in vier Formen, zwischen zwei Farben.</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Fächerpinsel</translation>
    </message>
    <message>
        <source>Fast from</source>
        <translation>Schnell ab</translation>
    </message>
    <message>
        <source>Felt Tip</source>
        <translation>Filzstift</translation>
    </message>
    <message>
        <source>Filled outline</source>
        <translation>Gefüllter Umriss</translation>
    </message>
    <message>
        <source>Fills what the pen goes around while it goes.</source>
        <translation>Füllt, was der Stift umfährt, schon während er fährt.</translation>
    </message>
    <message>
        <source>Flat Watercolour</source>
        <translation>Aquarell flach</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>Waagr. spiegeln</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>Senkr. spiegeln</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Fluss</translation>
    </message>
    <message>
        <source>Flow influences</source>
        <translation>Flusseinflüsse</translation>
    </message>
    <message>
        <source>Flow jitter</source>
        <translation>Fluss-Jitter</translation>
    </message>
    <message>
        <source>Follow size by</source>
        <translation>Größenbezug</translation>
    </message>
    <message>
        <source>Follow stroke</source>
        <translation>Strich folgen</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Gouache Dry</source>
        <translation>Gouache trocken</translation>
    </message>
    <message>
        <source>Grainy Airbrush</source>
        <translation>Körnige Airbrush</translation>
    </message>
    <message>
        <source>Hairs without paint that draw one colour into the other in fine streaks.</source>
        <translation>Haare ohne Farbe, die eine Farbe in feinen Streifen in die andere ziehen.</translation>
    </message>
    <message>
        <source>Hard Eraser</source>
        <translation>Harter Radierer</translation>
    </message>
    <message>
        <source>Hard Pixel</source>
        <translation>Harte Pixel</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>Härte</translation>
    </message>
    <message>
        <source>Height of the dab relative to its width.</source>
        <translation>Höhe des Tupfers im Verhältnis zur Breite.</translation>
    </message>
    <message>
        <source>How a stroke meets the canvas; any other number, as normal.</source>
        <translation>Wie ein Strich auf die Leinwand trifft; jede andere Zahl wirkt wie „Normal“.</translation>
    </message>
    <message>
        <source>How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as they are thinner, or both.</source>
        <translation>Wie Tupfer unter 3 Pixel Breite gezeichnet werden: wie sie sind, 3 Pixel groß, um so viel blasser, wie sie dünner sind, oder beides.</translation>
    </message>
    <message>
        <source>How far dabs scatter, in dab sizes.</source>
        <translation>Wie weit Tupfer streuen, in Tupfergrößen.</translation>
    </message>
    <message>
        <source>How far that rim reaches into the stroke, in buffer pixels.</source>
        <translation>Wie weit dieser Rand in den Strich reicht, in Bildpixeln.</translation>
    </message>
    <message>
        <source>How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 what lay under the dab before alone, 1 what they hold, at first loadQuantity of the brush colour, taking up more the wetter.</source>
        <translation>Wie weit die Borsten eines Wischpinsels, jede für sich, Farbe am Strich entlang tragen: 0 nur, was zuvor unter dem Tupfer lag, 1 was sie halten, anfangs die Pinselfarbe gemäß „Eigene Farbe“; je nasser, desto mehr nehmen sie auf.</translation>
    </message>
    <message>
        <source>How far the paper&apos;s heights decide: light dabs catch its tops alone, firm ones and full flow fill its valleys; 0 not at all.</source>
        <translation>Wie weit die Höhen des Papiers entscheiden: Leichte Tupfer erfassen nur die Spitzen, feste mit vollem Fluss füllen die Täler; 0 gar nicht.</translation>
    </message>
    <message>
        <source>How far the second line&apos;s dabs scatter, in dab sizes.</source>
        <translation>Wie weit die Tupfer der zweiten Linie streuen, in Tupfergrößen.</translation>
    </message>
    <message>
        <source>How much paint one dab lays down; dabs build up where they overlap.</source>
        <translation>Wie viel Farbe ein Tupfer aufträgt; überlappende Tupfer bauen sich auf.</translation>
    </message>
    <message>
        <source>How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at all, 1 until nothing is left of it.</source>
        <translation>Wie viel blasser das Innere eines Strichs trocknet als sein Rand, wie bei Aquarell: 0 gar nicht, 1 bis nichts davon bleibt.</translation>
    </message>
    <message>
        <source>How quickly the measured speed follows the pointer.</source>
        <translation>Wie schnell das gemessene Tempo dem Zeiger folgt.</translation>
    </message>
    <message>
        <source>How the second line&apos;s size follows radius; any other number, not at all.</source>
        <translation>Wie die Größe der zweiten Linie der Pinselgröße folgt; bei jeder anderen Zahl gar nicht.</translation>
    </message>
    <message>
        <source>Hue jitter</source>
        <translation>Farbton-Jitter</translation>
    </message>
    <message>
        <source>Image influences</source>
        <translation>Bildeinflüsse</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo darauf, wie fest ein Tupfer auf dem Papier liegt, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on that number, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf diese Zahl, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the flow, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf den Fluss, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the mixing, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Mischung, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the rotation, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Drehung, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the roundness, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Rundheit, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the scatter, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Streuung, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the size, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Größe, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each.</source>
        <translation>Einfluss von Druck, Neigung und Tempo auf die Wahl des Spitzenbilds, jeweils -1 bis 1.</translation>
    </message>
    <message>
        <source>Ink Pen</source>
        <translation>Tuschefeder</translation>
    </message>
    <message>
        <source>Ink Spatter</source>
        <translation>Tuschespritzer</translation>
    </message>
    <message>
        <source>Ink flicked off a brush, in blots that burst and drops that fly.</source>
        <translation>Vom Pinsel geschnippte Tusche, in platzenden Klecksen und fliegenden Tropfen.</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Largest size, as a fraction of radius.</source>
        <translation>Größte Größe als Anteil der Pinselgröße.</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Least flow</source>
        <translation>Mindestfluss</translation>
    </message>
    <message>
        <source>Length of that ramp, in dabs.</source>
        <translation>Länge dieses Anlaufs in Tupfern.</translation>
    </message>
    <message>
        <source>Length of the start taper, in buffer pixels.</source>
        <translation>Länge der Verjüngung am Anfang, in Bildpixeln.</translation>
    </message>
    <message>
        <source>Lets the paper through more, or less, all over.</source>
        <translation>Lässt das Papier insgesamt mehr oder weniger durch.</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Live Fill</source>
        <translation>Live-Füllung</translation>
    </message>
    <message>
        <source>Lower bound of the influenced flow, as a fraction of flow.</source>
        <translation>Untergrenze des beeinflussten Flusses als Anteil des Flusses.</translation>
    </message>
    <message>
        <source>Lower bound of the roundness.</source>
        <translation>Untergrenze der Rundheit.</translation>
    </message>
    <message>
        <source>Meadow Grass</source>
        <translation>Wiesengras</translation>
    </message>
    <message>
        <source>Mechanical Pencil</source>
        <translation>Druckbleistift</translation>
    </message>
    <message>
        <source>Mirrors every other dab left to right, at random.</source>
        <translation>Spiegelt zufällig jeden zweiten Tupfer von links nach rechts.</translation>
    </message>
    <message>
        <source>Mirrors every other dab top to bottom, at random.</source>
        <translation>Spiegelt zufällig jeden zweiten Tupfer von oben nach unten.</translation>
    </message>
    <message>
        <source>Mirrors the tip left to right.</source>
        <translation>Spiegelt die Spitze von links nach rechts.</translation>
    </message>
    <message>
        <source>Mirrors the tip top to bottom.</source>
        <translation>Spiegelt die Spitze von oben nach unten.</translation>
    </message>
    <message>
        <source>Most flow</source>
        <translation>Höchstfluss</translation>
    </message>
    <message>
        <source>Much water and little pigment, in pools that dry unevenly and leave a rim.</source>
        <translation>Viel Wasser und wenig Pigment, in Pfützen, die ungleichmäßig trocknen und einen Rand hinterlassen.</translation>
    </message>
    <message>
        <source>Multicolour</source>
        <translation>Mehrfarbig</translation>
    </message>
    <message>
        <source>Multicolour: the tip&apos;s own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters.</source>
        <translation>Mehrfarbig: Die Farben der Spitze selbst malen (wo sie schwarz ist, die Pinselfarbe); Farbton-, Sättigungs- und Helligkeits-Jitter variieren jeden Tupfer.</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>No smudging</source>
        <translation>Ohne Wischen</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Number of dabs after which the paint has run out; 0 or 1 for never.</source>
        <translation>Anzahl der Tupfer, nach der die Farbe aufgebraucht ist; 0 oder 1 für nie.</translation>
    </message>
    <message>
        <source>Oil Filbert</source>
        <translation>Öl Katzenzunge</translation>
    </message>
    <message>
        <source>Oil Flat</source>
        <translation>Öl flach</translation>
    </message>
    <message>
        <source>Oil Impasto</source>
        <translation>Öl pastos</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opacity of a stroke as a whole, however often it crosses itself.</source>
        <translation>Deckkraft eines Strichs im Ganzen, wie oft er sich auch kreuzt.</translation>
    </message>
    <message>
        <source>Opaque matt paint, a little uneven in tone, that breaks up on rough paper.</source>
        <translation>Deckende matte Farbe, im Ton etwas ungleichmäßig, die auf rauem Papier aufreißt.</translation>
    </message>
    <message>
        <source>Outline blur</source>
        <translation>Umrissunschärfe</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>Eigene Farbe</translation>
    </message>
    <message>
        <source>Paint from a can: coarse drops all over the jet, more of them under pressure.</source>
        <translation>Farbe aus der Dose: grobe Tropfen im ganzen Strahl, unter Druck mehr davon.</translation>
    </message>
    <message>
        <source>Paints through the paper given as the mask image.</source>
        <translation>Malt durch das Papier, das als Maskenbild gegeben ist.</translation>
    </message>
    <message>
        <source>Palette Knife</source>
        <translation>Palettmesser</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper brightness</source>
        <translation>Papierhelligkeit</translation>
    </message>
    <message>
        <source>Paper contrast</source>
        <translation>Papierkontrast</translation>
    </message>
    <message>
        <source>Paper depth</source>
        <translation>Papiertiefe</translation>
    </message>
    <message>
        <source>Paper scale</source>
        <translation>Papierskala</translation>
    </message>
    <message>
        <source>Paper scraps of all colours, thrown wide.</source>
        <translation>Papierschnipsel in allen Farben, weit geworfen.</translation>
    </message>
    <message>
        <source>Paper, repeated over the canvas: white lets paint through, black and transparent hold it back.</source>
        <translation>Papier, auf der Leinwand wiederholt: Weiß lässt Farbe durch, Schwarz und Transparenz halten sie zurück.</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Bleistift</translation>
    </message>
    <message>
        <source>Pencil 2B</source>
        <translation>Bleistift 2B</translation>
    </message>
    <message>
        <source>Picks one of several tip images at random for each dab.</source>
        <translation>Wählt für jeden Tupfer zufällig eines von mehreren Spitzenbildern.</translation>
    </message>
    <message>
        <source>Pixel aligned</source>
        <translation>Pixelgenau</translation>
    </message>
    <message>
        <source>Plastic paint from a bristle brush: covers at once and keeps the hairs&apos; furrows.</source>
        <translation>Kunststofffarbe aus dem Borstenpinsel: deckt sofort und behält die Furchen der Haare.</translation>
    </message>
    <message>
        <source>Pointer samples gathered before a segment is drawn: higher is steadier and lags more.</source>
        <translation>Zeigermesspunkte, die vor dem Zeichnen eines Abschnitts gesammelt werden: mehr ist ruhiger und hängt stärker nach.</translation>
    </message>
    <message>
        <source>Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile.</source>
        <translation>Setzt an die Stelle des Strichs die Form, die gemeint war, oder nichts; die Pinseltypen 3 und 4 zeichnen solange einfache Tupfer.</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>Kammpinsel</translation>
    </message>
    <message>
        <source>Ramp length</source>
        <translation>Anlauflänge</translation>
    </message>
    <message>
        <source>Ramp up</source>
        <translation>Anlauf</translation>
    </message>
    <message>
        <source>Ramps the mixed amount up over a smudge stroke&apos;s first dabs.</source>
        <translation>Steigert die gemischte Menge über die ersten Tupfer eines Wischstrichs.</translation>
    </message>
    <message>
        <source>Random across</source>
        <translation>Waagr. zufällig</translation>
    </message>
    <message>
        <source>Random image</source>
        <translation>Zufallsbild</translation>
    </message>
    <message>
        <source>Random mixing of each dab toward the secondary colour, 0 to 1.</source>
        <translation>Zufällige Mischung jedes Tupfers zur Zweitfarbe hin, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random rotation of each dab, 0 to 1 for up to half a turn either way.</source>
        <translation>Zufällige Drehung jedes Tupfers, 0 bis 1 für bis zu einer halben Umdrehung in beide Richtungen.</translation>
    </message>
    <message>
        <source>Random shrinking of dabs, 0 to 1.</source>
        <translation>Zufälliges Schrumpfen der Tupfer, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random start</source>
        <translation>Zufallsstart</translation>
    </message>
    <message>
        <source>Random upright</source>
        <translation>Senkr. zufällig</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s brightness, 0 to 1.</source>
        <translation>Zufällige Variation der Helligkeit jedes Tupfers, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s hue, 0 to 1.</source>
        <translation>Zufällige Variation des Farbtons jedes Tupfers, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s saturation, 0 to 1.</source>
        <translation>Zufällige Variation der Sättigung jedes Tupfers, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random variation of that number, 0 to 1.</source>
        <translation>Zufällige Variation dieser Zahl, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random variation of the flow, 0 to 1.</source>
        <translation>Zufällige Variation des Flusses, 0 bis 1.</translation>
    </message>
    <message>
        <source>Random variation of the roundness, 0 to 1.</source>
        <translation>Zufällige Variation der Rundheit, 0 bis 1.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Recog point scale</source>
        <translation>Punktteiler</translation>
    </message>
    <message>
        <source>Recogition</source>
        <translation>Formerkennung</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>Erkennung</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Rotation of the tip in radians, counter-clockwise.</source>
        <translation>Drehung der Spitze im Bogenmaß, gegen den Uhrzeigersinn.</translation>
    </message>
    <message>
        <source>Round Marker</source>
        <translation>Rundmarker</translation>
    </message>
    <message>
        <source>Round Watercolour</source>
        <translation>Aquarell rund</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rundheit</translation>
    </message>
    <message>
        <source>Roundness influences</source>
        <translation>Rundungseinflüsse</translation>
    </message>
    <message>
        <source>Roundness jitter</source>
        <translation>Rundheits-Jitter</translation>
    </message>
    <message>
        <source>Rubs out all, to a clean edge.</source>
        <translation>Radiert alles weg, bis zu einem sauberen Rand.</translation>
    </message>
    <message>
        <source>Runs dry after</source>
        <translation>Leer nach</translation>
    </message>
    <message>
        <source>Saturation jitter</source>
        <translation>Sättigungs-Jitter</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Scatter influences</source>
        <translation>Streuungseinflüsse</translation>
    </message>
    <message>
        <source>Scatters dabs all around instead of only across the stroke.</source>
        <translation>Streut Tupfer ringsum statt nur quer zum Strich.</translation>
    </message>
    <message>
        <source>Scatters the second line&apos;s dabs all around instead of only across the stroke.</source>
        <translation>Streut die Tupfer der zweiten Linie ringsum statt nur quer zum Strich.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Zweitfarbe</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Zweite Linie</translation>
    </message>
    <message>
        <source>Secondary colour, toward which the colour jitter mixes.</source>
        <translation>Zweitfarbe, zu der hin der Farb-Jitter mischt.</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size at the start of the stroke&apos;s taper, as a fraction of radius; 0 for no taper.</source>
        <translation>Größe am Anfang der Strichverjüngung als Anteil der Pinselgröße; 0 für keine Verjüngung.</translation>
    </message>
    <message>
        <source>Size at the very end of the stroke, as a fraction of radius; 0 for no taper.</source>
        <translation>Größe ganz am Ende des Strichs als Anteil der Pinselgröße; 0 für keine Verjüngung.</translation>
    </message>
    <message>
        <source>Size influences</source>
        <translation>Größeneinflüsse</translation>
    </message>
    <message>
        <source>Size jitter</source>
        <translation>Größen-Jitter</translation>
    </message>
    <message>
        <source>Size of a full dab across, in buffer pixels.</source>
        <translation>Durchmesser eines vollen Tupfers in Bildpixeln.</translation>
    </message>
    <message>
        <source>Size of one paper tile on the canvas, relative to the mask image.</source>
        <translation>Größe einer Papierkachel auf der Leinwand im Verhältnis zum Maskenbild.</translation>
    </message>
    <message>
        <source>Size of the second line&apos;s dabs, in buffer pixels.</source>
        <translation>Größe der Tupfer der zweiten Linie in Bildpixeln.</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Kleinste</translation>
    </message>
    <message>
        <source>Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest.</source>
        <translation>Kleinste Größe als Anteil der Pinselgröße. Ohne Einflüsse werden Tupfer in der Mitte zwischen kleinster und größter gezeichnet.</translation>
    </message>
    <message>
        <source>Smooth curves</source>
        <translation>Glatte Kurven</translation>
    </message>
    <message>
        <source>Smudge</source>
        <translation>Wischen</translation>
    </message>
    <message>
        <source>Smudge Finger</source>
        <translation>Wischfinger</translation>
    </message>
    <message>
        <source>Soft Airbrush</source>
        <translation>Weiche Airbrush</translation>
    </message>
    <message>
        <source>Soft Blender</source>
        <translation>Weicher Vertreiber</translation>
    </message>
    <message>
        <source>Soft Eraser</source>
        <translation>Weicher Radierer</translation>
    </message>
    <message>
        <source>Soft Pastel</source>
        <translation>Softpastell</translation>
    </message>
    <message>
        <source>Soft disc</source>
        <translation>Weiche Scheibe</translation>
    </message>
    <message>
        <source>Soft pastel: powder that fills the tooth and blooms under pressure.</source>
        <translation>Softpastell: Pulver, das das Papierkorn füllt und unter Druck aufblüht.</translation>
    </message>
    <message>
        <source>Source of one of the blend programs, which selects its blend type.</source>
        <translation>Quelltext eines der Mischprogramme, der dessen Mischart auswählt.</translation>
    </message>
    <message>
        <source>Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.</source>
        <translation>Verteilt Tupfer gleichmäßig entlang des Strichs; sonst ergibt jeder Zeigermesspunkt einen Tupfer.</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Speed Pen</source>
        <translation>Tempofeder</translation>
    </message>
    <message>
        <source>Speed response</source>
        <translation>Temporeaktion</translation>
    </message>
    <message>
        <source>Sponge</source>
        <translation>Schwamm</translation>
    </message>
    <message>
        <source>Spray Can</source>
        <translation>Sprühdose</translation>
    </message>
    <message>
        <source>Start length</source>
        <translation>Anfangslänge</translation>
    </message>
    <message>
        <source>Start size</source>
        <translation>Anfangsgröße</translation>
    </message>
    <message>
        <source>Steadying</source>
        <translation>Beruhigung</translation>
    </message>
    <message>
        <source>Steepness of the paper&apos;s heights: above 1 its grain has harder edges, 0 is smooth.</source>
        <translation>Steilheit der Papierhöhen: Über 1 hat das Korn härtere Kanten, 0 ist glatt.</translation>
    </message>
    <message>
        <source>Switches off the smudge behaviour of brush type 3.</source>
        <translation>Schaltet das Wischverhalten von Pinseltyp 3 aus.</translation>
    </message>
    <message>
        <source>Takes a little away with each pass, without an edge.</source>
        <translation>Nimmt mit jedem Zug etwas weg, ohne Kante.</translation>
    </message>
    <message>
        <source>Technical Pen</source>
        <translation>Tuschefüller</translation>
    </message>
    <message>
        <source>Textured Gouache</source>
        <translation>Gouache strukturiert</translation>
    </message>
    <message>
        <source>That difference in buffer pixels, or that ratio.</source>
        <translation>Diese Differenz in Bildpixeln oder dieses Verhältnis.</translation>
    </message>
    <message>
        <source>The rest of the paint on a brush: broken strokes of single hairs over rough paper.</source>
        <translation>Der Rest der Farbe im Pinsel: aufgebrochene Striche einzelner Haare auf rauem Papier.</translation>
    </message>
    <message>
        <source>Thick paint from a hog&apos;s hair brush, which mixes with what is wet below it.</source>
        <translation>Dicke Farbe aus dem Schweineborstenpinsel, die sich mit dem Nassen darunter mischt.</translation>
    </message>
    <message>
        <source>Thickness of the ring tip in pixels, or width to height of the rectangle tip.</source>
        <translation>Dicke der Ringspitze in Pixeln oder Breite zu Höhe der Rechteckspitze.</translation>
    </message>
    <message>
        <source>Thin hairs spread wide, for foliage, fur and hair.</source>
        <translation>Feine, weit gespreizte Haare für Laub, Fell und Haar.</translation>
    </message>
    <message>
        <source>Thin lines</source>
        <translation>Dünne Linien</translation>
    </message>
    <message>
        <source>Thinned flow</source>
        <translation>Dünnerer Fluss</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>Tip image</source>
        <translation>Spitzenbild</translation>
    </message>
    <message>
        <source>Tip image of the second line.</source>
        <translation>Spitzenbild der zweiten Linie.</translation>
    </message>
    <message>
        <source>Tip images</source>
        <translation>Spitzenbilder</translation>
    </message>
    <message>
        <source>Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode.</source>
        <translation>Spitzenbilder für Spitzentyp 0, bis zu 16: Alpha ist die Form; eigene Farben zeigen sich im Mehrfarbmodus.</translation>
    </message>
    <message>
        <source>Tip proportion</source>
        <translation>Proportion</translation>
    </message>
    <message>
        <source>True Blender</source>
        <translation>Echter Vertreiber</translation>
    </message>
    <message>
        <source>Tufts of grass that stand upright along the stroke.</source>
        <translation>Grasbüschel, die entlang des Strichs aufrecht stehen.</translation>
    </message>
    <message>
        <source>Turns the tip by a random angle at the start of every stroke.</source>
        <translation>Dreht die Spitze am Anfang jedes Strichs um einen zufälligen Winkel.</translation>
    </message>
    <message>
        <source>Turns the tip into the direction of the stroke.</source>
        <translation>Dreht die Spitze in Strichrichtung.</translation>
    </message>
    <message>
        <source>Upper bound of the influenced flow, as a fraction of flow.</source>
        <translation>Obergrenze des beeinflussten Flusses als Anteil des Flusses.</translation>
    </message>
    <message>
        <source>Use paper</source>
        <translation>Papier nutzen</translation>
    </message>
    <message>
        <source>Watery Wash</source>
        <translation>Wässrige Lavierung</translation>
    </message>
    <message>
        <source>Wax Crayon</source>
        <translation>Wachskreide</translation>
    </message>
    <message>
        <source>Wet edge</source>
        <translation>Nasser Rand</translation>
    </message>
    <message>
        <source>Wetness</source>
        <translation>Nässe</translation>
    </message>
    <message>
        <source>Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all.</source>
        <translation>Nässe eines Wischpinsels: wie viel der berührten Leinwandfarbe mitgenommen wird, 0 nichts bis 1 alles.</translation>
    </message>
    <message>
        <source>What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.</source>
        <translation>Was ein Wischpinsel aufträgt: 0 nur seine eigene Farbe, 1 nur Leinwandfarbe.</translation>
    </message>
    <message>
        <source>What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other number, dabs.</source>
        <translation>Was aus einem Strich wird: Tupfer, wischende Tupfer oder ein gefüllter, live gezeigter Umriss; jede andere Zahl ergibt Tupfer.</translation>
    </message>
    <message>
        <source>Whole pixels without a soft edge, for pixel art and masks.</source>
        <translation>Ganze Pixel ohne weichen Rand, für Pixelkunst und Masken.</translation>
    </message>
    <message>
        <source>acrylic</source>
        <translation>Acryl</translation>
    </message>
    <message>
        <source>airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>blender</source>
        <translation>Vertreiber</translation>
    </message>
    <message>
        <source>chalk</source>
        <translation>Kreide</translation>
    </message>
    <message>
        <source>charcoal</source>
        <translation>Kohle</translation>
    </message>
    <message>
        <source>crayon</source>
        <translation>Wachskreide</translation>
    </message>
    <message>
        <source>dry</source>
        <translation>trocken</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>gouache</source>
        <translation>Gouache</translation>
    </message>
    <message>
        <source>ink</source>
        <translation>Tusche</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>Öl</translation>
    </message>
    <message>
        <source>pastel</source>
        <translation>Pastell</translation>
    </message>
    <message>
        <source>pencil</source>
        <translation>Bleistift</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>smudge</source>
        <translation>Wischen</translation>
    </message>
    <message>
        <source>spray</source>
        <translation>Spray</translation>
    </message>
    <message>
        <source>stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>tilt</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>watercolour</source>
        <translation>Aquarell</translation>
    </message>
    <message>
        <source>wet</source>
        <translation>nass</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter</name>
    <message>
        <source>a canvas is at least 1 x 1 pixel large</source>
        <translation>Eine Leinwand ist mindestens 1 x 1 Pixel groß</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a side has at most %3</source>
        <translation>%1 x %2 Pixel sind zu groß: Eine Seite hat höchstens %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a canvas has at most %3 million</source>
        <translation>%1 x %2 Pixel sind zu groß: Eine Leinwand hat höchstens %3 Millionen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>„%1“ kann nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>the canvas cannot be read</source>
        <translation>Die Leinwand kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>„%1“ enthält nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>Export Brush</source>
        <translation>Pinsel exportieren</translation>
    </message>
    <message>
        <source>Brush (*.xbf)</source>
        <translation>Pinsel (*.xbf)</translation>
    </message>
    <message>
        <source>Import Brushes</source>
        <translation>Pinsel importieren</translation>
    </message>
    <message>
        <source>Brushes (*.xbf %1)</source>
        <translation>Pinsel (*.xbf %1)</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>There is nothing to paint with; the log says what is missing.</source>
        <translation>Es gibt nichts, womit gemalt werden kann; das Protokoll nennt, was fehlt.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>Sie ist zu groß</translation>
    </message>
    <message>
        <source>it does not begin with &quot;GIMP Palette&quot;</source>
        <translation>Sie beginnt nicht mit „GIMP Palette“</translation>
    </message>
    <message>
        <source>line %1 is no colour of three numbers up to 255</source>
        <translation>Zeile %1 ist keine Farbe aus drei Zahlen bis 255</translation>
    </message>
    <message>
        <source>it has more than %1 colours</source>
        <translation>Sie enthält mehr als %1 Farben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had here.</source>
        <translation>Eine Leinwand von %1 × %2 Pixeln ist hier nicht möglich.</translation>
    </message>
    <message>
        <source>no picture is written as %1; the kinds are %2</source>
        <translation>Kein Bild wird als %1 geschrieben; möglich sind %2</translation>
    </message>
    <message>
        <source>This kind of file has no layers.</source>
        <translation>Dieser Dateityp kennt keine Ebenen.</translation>
    </message>
    <message>
        <source>This kind of file cannot be seen through.</source>
        <translation>Dieser Dateityp kennt keine Transparenz.</translation>
    </message>
    <message>
        <source>It shows all of them together. They stay here as long as this picture is open, and an OpenRaster file keeps them.</source>
        <translation>Die Datei zeigt alle zusammen. Die Ebenen bleiben, solange dieses Bild geöffnet ist; eine OpenRaster-Datei bewahrt sie.</translation>
    </message>
    <message>
        <source>What is transparent is filled with the paper&apos;s colour. A PNG file keeps it.</source>
        <translation>Transparentes wird mit der Papierfarbe gefüllt. Eine PNG-Datei bewahrt die Transparenz.</translation>
    </message>
    <message>
        <source>Save Flattened</source>
        <translation>Vereint speichern</translation>
    </message>
    <message>
        <source>Save Filled</source>
        <translation>Gefüllt speichern</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Als PNG speichern…</translation>
    </message>
    <message>
        <source>Save as OpenRaster…</source>
        <translation>Als OpenRaster speichern…</translation>
    </message>
    <message>
        <source>OpenRaster, with layers (*.ora)</source>
        <translation>OpenRaster, mit Ebenen (*.ora)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>JPEG-Bild (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP image, lossless (*.webp)</source>
        <translation>WebP-Bild, verlustfrei (*.webp)</translation>
    </message>
    <message>
        <source>Other images (%1)</source>
        <translation>Andere Bilder (%1)</translation>
    </message>
    <message>
        <source>Import Palettes</source>
        <translation>Paletten importieren</translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation>GIMP-Paletten (*.gpl)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Palette exportieren</translation>
    </message>
    <message>
        <source>GIMP palette (*.gpl)</source>
        <translation>GIMP-Palette (*.gpl)</translation>
    </message>
    <message>
        <source>Export Recording</source>
        <translation>Aufnahme exportieren</translation>
    </message>
    <message>
        <source>Recording (*.jsonl)</source>
        <translation>Aufnahme (*.jsonl)</translation>
    </message>
    <message>
        <source>Export Time-Lapse</source>
        <translation>Zeitraffer exportieren</translation>
    </message>
    <message>
        <source>Animated WebP (*.webp)</source>
        <translation>Animiertes WebP (*.webp)</translation>
    </message>
    <message>
        <source>Folder of pictures (*)</source>
        <translation>Ordner mit Bildern (*)</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 Kopie %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Autosave</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushBar</name>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Brush size and opacity</source>
        <translation>Pinselgröße und Deckkraft</translation>
    </message>
    <message>
        <source>Size of the brush, by every drag, wheel or arrow key the same part of it</source>
        <translation>Pinselgröße; Ziehen, Mausrad und Pfeiltasten ändern sie stets um denselben Anteil</translation>
    </message>
    <message>
        <source>Opacity of each stroke</source>
        <translation>Deckkraft jedes Strichs</translation>
    </message>
    <message>
        <source>How much colours may differ that a fill takes for one</source>
        <translation>Wie verschieden Farben sein dürfen, die eine Füllung als eine nimmt</translation>
    </message>
    <message>
        <source>A double click, F2 or Enter types the number</source>
        <translation>Ein Doppelklick, F2 oder Enter öffnet ein Feld für die Zahl</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushPanel</name>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Reset to preset</source>
        <translation>Auf Vorgabe setzen</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Gives every brush setting what the chosen brush has</source>
        <translation>Setzt alle Pinseleinstellungen auf die Werte des gewählten Pinsels</translation>
    </message>
    <message>
        <source>Gives every brush setting its default</source>
        <translation>Setzt alle Pinseleinstellungen auf ihre Standardwerte</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>Farben tauschen (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I)</source>
        <translation>Farbe von der Leinwand aufnehmen (I)</translation>
    </message>
    <message>
        <source>No setting is called so.</source>
        <translation>Keine Einstellung heißt so.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushRow</name>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasSizeDialog</name>
    <message>
        <source>Canvas Size</source>
        <translation>Leinwandgröße</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>&amp;Einheit</translation>
    </message>
    <message>
        <source>What is there stays</source>
        <translation>Vorhandenes bleibt</translation>
    </message>
    <message>
        <source>At the top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>At the top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>At the left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>In der Mitte</translation>
    </message>
    <message>
        <source>At the right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>At the bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>At the bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>%1 × %2 pixels; what lies beyond is cut off.</source>
        <translation>%1 × %2 Pixel; was darüber hinausragt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels.</source>
        <translation>%1 × %2 Pixel.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasStatus</name>
    <message>
        <source>Shapes</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>What paints this picture</source>
        <translation>Womit dieses Bild gemalt wird</translation>
    </message>
    <message>
        <source>Pressure %1 %</source>
        <translation>Druck %1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Mirrored, %1</source>
        <translation>Gespiegelt, %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasViewport</name>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ChoiceEditor</name>
    <message>
        <source>Other (%1)</source>
        <translation>Andere (%1)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorPanel</name>
    <message>
        <source>Foreground colour</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Letzte Farben</translation>
    </message>
    <message>
        <source>%1: what is chosen below</source>
        <translation>%1: wird unten gewählt</translation>
    </message>
    <message>
        <source>Colour as red, green and blue</source>
        <translation>Farbe als Rot, Grün und Blau</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal</source>
        <translation>#rrggbb, #rgb oder ein Name wie teal</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>Farben tauschen (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I, or hold Ctrl)</source>
        <translation>Farbe von der Leinwand aufnehmen (I oder Strg halten)</translation>
    </message>
    <message>
        <source>More to do with colours</source>
        <translation>Weitere Aktionen für Farben</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>&amp;Eyedropper Takes</source>
        <translation>&amp;Pipette nimmt</translation>
    </message>
    <message>
        <source>One Pixel</source>
        <translation>Ein Pixel</translation>
    </message>
    <message>
        <source>Average of %1 × %1 Pixels</source>
        <translation>Mittel aus %1 × %1 Pixeln</translation>
    </message>
    <message>
        <source>&amp;Forget Recent Colours</source>
        <translation>Letzte Farben &amp;vergessen</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorSliders</name>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Chroma</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorWheel</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Hue: drag, or the arrow keys</source>
        <translation>Farbton: ziehen oder Pfeiltasten</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 Grad</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ControlEditor</name>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 durch %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Document</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>Es gibt kein Bild zu speichern.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ImagesEditor</name>
    <message>
        <source>Load…</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: at most %2 images are used.</source>
        <translation>„%1“ entfällt: Höchstens %2 Bilder werden verwendet.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LayerPanel</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Lock alpha</source>
        <translation>Alpha sperren</translation>
    </message>
    <message>
        <source>Strokes change its colours alone</source>
        <translation>Striche ändern nur ihre Farben</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Blend mode of the layer</source>
        <translation>Mischmodus der Ebene</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>Deckkraft der Ebene</translation>
    </message>
    <message>
        <source>Add a layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate the layer</source>
        <translation>Ebene duplizieren</translation>
    </message>
    <message>
        <source>Move the layer up</source>
        <translation>Ebene nach oben</translation>
    </message>
    <message>
        <source>Move the layer down</source>
        <translation>Ebene nach unten</translation>
    </message>
    <message>
        <source>Merge with the layer below</source>
        <translation>Mit der Ebene darunter vereinen</translation>
    </message>
    <message>
        <source>Delete the layer</source>
        <translation>Ebene löschen</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Ticked layers are seen; a double click names one</source>
        <translation>Angehakte Ebenen sind sichtbar; ein Doppelklick benennt um</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LeftPicturesDialog</name>
    <message>
        <source>Recover Pictures</source>
        <translation>Bilder wiederherstellen</translation>
    </message>
    <message>
        <source>Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo steps where they are left.</source>
        <translation>Dabpainter wurde unerwartet beendet, während diese Bilder gemalt wurden. Jedes geht dort weiter, wo es war, mit seinen Rückgängig-Schritten, soweit noch vorhanden.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <source>without undo steps</source>
        <translation>ohne Rückgängig-Schritte</translation>
    </message>
    <message>
        <source>one undo step</source>
        <translation>ein Rückgängig-Schritt</translation>
    </message>
    <message>
        <source>%1 undo steps</source>
        <translation>%1 Rückgängig-Schritte</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3, %4 on the disk</source>
        <translation>%1 × %2 Pixel, %3, %4 auf dem Datenträger</translation>
    </message>
    <message>
        <source>Delete this picture for good?</source>
        <translation>Dieses Bild endgültig löschen?</translation>
    </message>
    <message>
        <source>It cannot be deleted: it is in use, or the disk refuses.</source>
        <translation>Es kann nicht gelöscht werden: Es wird verwendet, oder der Datenträger lässt es nicht zu.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::MainWindow</name>
    <message>
        <source>The graphics card cannot paint this picture</source>
        <translation>Die Grafikkarte kann dieses Bild nicht malen</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had from this graphics driver.</source>
        <translation>Dieser Grafiktreiber stellt keine Leinwand von %1 × %2 Pixeln bereit.</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here, its undo steps are not</source>
        <translation>Die Grafikkarte war kurz nicht verfügbar; das Bild ist noch da, seine Rückgängig-Schritte nicht</translation>
    </message>
    <message>
        <source>The picture cannot be recovered: %1.</source>
        <translation>Das Bild kann nicht wiederhergestellt werden: %1.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Place Image</source>
        <translation>Bild platzieren</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Place Image…</source>
        <translation>Bild &amp;platzieren…</translation>
    </message>
    <message>
        <source>&amp;Recover Pictures…</source>
        <translation>Bilder &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>No run has left a picture</source>
        <translation>Es gibt kein Bild wiederherzustellen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo &amp;Steps…</source>
        <translation>Rückgängig-&amp;Schritte…</translation>
    </message>
    <message>
        <source>&amp;Keys…</source>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Leinwand</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Paint with</source>
        <translation>&amp;Malen mit</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatisch</translation>
    </message>
    <message>
        <source>&amp;Graphics Card</source>
        <translation>&amp;Grafikkarte</translation>
    </message>
    <message>
        <source>&amp;Processor</source>
        <translation>&amp;Prozessor</translation>
    </message>
    <message>
        <source>Holds for pictures that are made or opened from now on</source>
        <translation>Gilt für Bilder, die ab jetzt neu angelegt oder geöffnet werden</translation>
    </message>
    <message>
        <source>&amp;Fingers</source>
        <translation>&amp;Finger</translation>
    </message>
    <message>
        <source>Move the Canvas Once a &amp;Pen Was Seen</source>
        <translation>Leinwand bewegen, sobald ein &amp;Stift erkannt wurde</translation>
    </message>
    <message>
        <source>Always &amp;Move the Canvas</source>
        <translation>Immer &amp;Leinwand bewegen</translation>
    </message>
    <message>
        <source>Al&amp;ways Paint</source>
        <translation>Immer &amp;malen</translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation>&amp;Pinsel</translation>
    </message>
    <message>
        <source>Size by Moving the Pointer</source>
        <translation>Größe durch Zeigerbewegung</translation>
    </message>
    <message>
        <source>&amp;Previous Brush</source>
        <translation>&amp;Vorheriger Pinsel</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>So&amp;fter</source>
        <translation>&amp;Weicher</translation>
    </message>
    <message>
        <source>&amp;Harder</source>
        <translation>&amp;Härter</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>&amp;Deckkraft</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation>Farben &amp;tauschen</translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation>&amp;Standardfarben</translation>
    </message>
    <message>
        <source>&amp;Eyedropper</source>
        <translation>Pi&amp;pette</translation>
    </message>
    <message>
        <source>Reco&amp;gnise Shapes</source>
        <translation>&amp;Formen erkennen</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>Alle Einstellungen &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Reset to Preset</source>
        <translation>Auf Vorgabe &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Whole Canvas</source>
        <translation>Ganze &amp;Leinwand</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Bedienfelder</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Brush settings</source>
        <translation>Pinseleinstellungen</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>The disk takes no undo steps: save, as a crash would lose this picture</source>
        <translation>Der Datenträger nimmt keine Rückgängig-Schritte auf: Speichern Sie, denn bei einem Absturz ginge dieses Bild verloren</translation>
    </message>
    <message>
        <source>No shape was recognised</source>
        <translation>Keine Form erkannt</translation>
    </message>
    <message>
        <source>Undo Steps</source>
        <translation>Rückgängig-Schritte</translation>
    </message>
    <message>
        <source>Steps that can be undone:</source>
        <translation>Schritte, die sich rückgängig machen lassen:</translation>
    </message>
    <message>
        <source>Strokes become shapes; what is none is taken away</source>
        <translation>Striche werden zu Formen; was keine ist, wird entfernt</translation>
    </message>
    <message>
        <source>Strokes stay as they are drawn</source>
        <translation>Striche bleiben, wie sie gezeichnet sind</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Farbauftrag</translation>
    </message>
    <message>
        <source>Canvas &amp;Size…</source>
        <translation>Leinwand&amp;größe…</translation>
    </message>
    <message>
        <source>Crop &amp;to Drawn</source>
        <translation>Auf Ge&amp;maltes zuschneiden</translation>
    </message>
    <message>
        <source>Nothing is drawn</source>
        <translation>Nichts ist gezeichnet</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>Nach l&amp;inks drehen</translation>
    </message>
    <message>
        <source>Turn &amp;Right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>&amp;Aufrecht</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>Ge&amp;spiegelt</translation>
    </message>
    <message>
        <source>Turn by Dragging</source>
        <translation>Drehen durch Ziehen</translation>
    </message>
    <message>
        <source>Pen Pr&amp;essure…</source>
        <translation>Stift&amp;druck…</translation>
    </message>
    <message>
        <source>Steady hand</source>
        <translation>Ruhige Hand</translation>
    </message>
    <message>
        <source>S&amp;ymmetry</source>
        <translation>S&amp;ymmetrie</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;Left and Right</source>
        <translation>&amp;Links und rechts</translation>
    </message>
    <message>
        <source>&amp;Above and Below</source>
        <translation>&amp;Oben und unten</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>&amp;Beides</translation>
    </message>
    <message>
        <source>&amp;Rays</source>
        <translation>&amp;Strahlen</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>Symmetrie</translation>
    </message>
    <message>
        <source>Draws copies of every stroke, mirrored or turned</source>
        <translation>Zeichnet Kopien jedes Strichs, gespiegelt oder gedreht</translation>
    </message>
    <message>
        <source>N&amp;umber of Rays…</source>
        <translation>&amp;Anzahl der Strahlen…</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strahlen</translation>
    </message>
    <message>
        <source>Rays of the symmetry:</source>
        <translation>Strahlen der Symmetrie:</translation>
    </message>
    <message>
        <source>&amp;Mirrored Rays</source>
        <translation>&amp;Gespiegelte Strahlen</translation>
    </message>
    <message>
        <source>&amp;Centre Here</source>
        <translation>&amp;Zentrum hier</translation>
    </message>
    <message>
        <source>Centre in the M&amp;iddle</source>
        <translation>Zentrum in die &amp;Mitte</translation>
    </message>
    <message>
        <source>&amp;Drag the Centre</source>
        <translation>Zentrum &amp;verschieben</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>Zuletzt geö&amp;ffnet</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Design</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Painter&apos;s &amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About Dabpainter</source>
        <translation>&amp;Über Dabpainter</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>Au&amp;fnahme</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Aufnehmen</translation>
    </message>
    <message>
        <source>What is painted from here on is kept, to be exported</source>
        <translation>Was ab jetzt gemalt wird, bleibt für den Export erhalten</translation>
    </message>
    <message>
        <source>&amp;Export Recording…</source>
        <translation>Aufnahme &amp;exportieren…</translation>
    </message>
    <message>
        <source>Export &amp;Time-Lapse…</source>
        <translation>&amp;Zeitraffer exportieren…</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>Painting the time-lapse…</source>
        <translation>Der Zeitraffer wird gemalt…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Enter or a double click puts it down, Escape gives it up</source>
        <translation>Enter oder Doppelklick setzt das Bild ab, Escape verwirft es</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>A&amp;uswahl</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alles</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>&amp;Lasso</source>
        <translation>&amp;Lasso</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy All &amp;Layers</source>
        <translation>Alle &amp;Ebenen kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>There is no picture to paste</source>
        <translation>Es gibt kein Bild zum Einfügen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>E&amp;raser</source>
        <translation>&amp;Radierer</translation>
    </message>
    <message>
        <source>&amp;Smudge</source>
        <translation>&amp;Wischen</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>Fü&amp;llen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Strokes become the line, polygon, ellipse, arc or arrow they are meant as</source>
        <translation>Striche werden zu der Linie, dem Vieleck, der Ellipse, dem Bogen oder dem Pfeil, der gemeint ist</translation>
    </message>
    <message>
        <source>This layer is hidden: nothing would be seen of it</source>
        <translation>Diese Ebene ist ausgeblendet: Nichts davon wäre zu sehen</translation>
    </message>
    <message>
        <source>There is not enough memory to fill this</source>
        <translation>Der Arbeitsspeicher reicht nicht, um dies zu füllen</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>Strokes keep to what is selected; Escape selects nothing</source>
        <translation>Striche bleiben in der Auswahl; Escape hebt sie auf</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here as the last step left it</source>
        <translation>Die Grafikkarte war kurz nicht verfügbar; das Bild ist noch da, wie es nach dem letzten Schritt war</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::NewCanvasDialog</name>
    <message>
        <source>New Canvas</source>
        <translation>Neue Leinwand</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>Hinter&amp;grund</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Takes about %1 of memory.</source>
        <translation>Belegt etwa %1 Arbeitsspeicher.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PaletteLibrary</name>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>„%1“ konnte nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable palette: %2.</source>
        <translation>„%1“ ist keine brauchbare Palettendatei: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PalettePage</name>
    <message>
        <source>Colours of the palette</source>
        <translation>Farben der Palette</translation>
    </message>
    <message>
        <source>No colours yet: + adds the present one.</source>
        <translation>Noch keine Farben: + fügt die aktuelle hinzu.</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Add the present colour to the palette</source>
        <translation>Aktuelle Farbe zur Palette hinzufügen</translation>
    </message>
    <message>
        <source>More to do with palettes</source>
        <translation>Weitere Aktionen für Paletten</translation>
    </message>
    <message>
        <source>&amp;New Palette…</source>
        <translation>&amp;Neue Palette…</translation>
    </message>
    <message>
        <source>&amp;Rename Palette…</source>
        <translation>Palette &amp;umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete Palette…</source>
        <translation>Palette &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Import Palettes…</source>
        <translation>Paletten &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation>Palette &amp;exportieren…</translation>
    </message>
    <message>
        <source>Re&amp;name Colour…</source>
        <translation>Farbe u&amp;mbenennen…</translation>
    </message>
    <message>
        <source>&amp;Remove Colour</source>
        <translation>Farbe ent&amp;fernen</translation>
    </message>
    <message>
        <source>Rename Colour</source>
        <translation>Farbe umbenennen</translation>
    </message>
    <message>
        <source>New Palette</source>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Palette umbenennen</translation>
    </message>
    <message>
        <source>Delete the palette &quot;%1&quot;?</source>
        <translation>Palette „%1“ löschen?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PictureFile</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>„%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>Es ist keine Datei</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>it is not an image of a known kind</source>
        <translation>Es ist kein Bild eines bekannten Formats</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>it is damaged (%1)</source>
        <translation>Die Datei ist beschädigt (%1)</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>Nicht genug Arbeitsspeicher</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetBrowser</name>
    <message>
        <source>Search brushes</source>
        <translation>Pinsel suchen</translation>
    </message>
    <message>
        <source>Save the present settings as a new brush</source>
        <translation>Aktuelle Einstellungen als neuen Pinsel speichern</translation>
    </message>
    <message>
        <source>More to do with the chosen brush</source>
        <translation>Weitere Aktionen für den gewählten Pinsel</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>%1 – modified</source>
        <translation>%1 – geändert</translation>
    </message>
    <message>
        <source>There are no brushes yet: import some by the menu above, or save the present settings as one.</source>
        <translation>Noch keine Pinsel: Importieren Sie welche über das Menü oben oder speichern Sie die aktuellen Einstellungen als Pinsel.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetChoice</name>
    <message>
        <source>Save as New Brush</source>
        <translation>Als neuen Pinsel speichern</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Replace the brush &quot;%1&quot;?</source>
        <translation>Pinsel „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>It takes the present settings, and what it was is lost.</source>
        <translation>Er erhält die aktuellen Einstellungen; seine bisherigen gehen verloren.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Rename Brush</source>
        <translation>Pinsel umbenennen</translation>
    </message>
    <message>
        <source>Delete the brush &quot;%1&quot;?</source>
        <translation>Pinsel „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete the file &quot;%1&quot; with its %2 brushes?</source>
        <translation>Datei „%1“ mit ihren %2 Pinseln löschen?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Of &quot;%1&quot; could not be carried over:
%2</source>
        <translation>Aus „%1“ konnte nicht übernommen werden:
%2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetDelegate</name>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>no preset</source>
        <translation>keine Vorgabe</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetFilter</name>
    <message>
        <source>No brush is called &quot;%1&quot;: clear the search.</source>
        <translation>Kein Pinsel heißt „%1“: Leeren Sie die Suche.</translation>
    </message>
    <message>
        <source>None of these is called &quot;%1&quot;: clear the search, or show all brushes.</source>
        <translation>Keiner davon heißt „%1“: Leeren Sie die Suche oder zeigen Sie alle Pinsel.</translation>
    </message>
    <message>
        <source>No favourites yet: a click on the star of a brush makes it one, or * in the list.</source>
        <translation>Noch keine Favoriten: Ein Klick auf den Stern eines Pinsels oder * in der Liste macht ihn dazu.</translation>
    </message>
    <message>
        <source>No brush is of this kind: show all brushes.</source>
        <translation>Kein Pinsel ist von dieser Art: Zeigen Sie alle Pinsel.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetKinds</name>
    <message>
        <source>Kind of brushes</source>
        <translation>Art der Pinsel</translation>
    </message>
    <message>
        <source>Which brushes are listed</source>
        <translation>Welche Pinsel aufgeführt werden</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetLibrary</name>
    <message>
        <source>it does not hold this brush</source>
        <translation>Sie enthält diesen Pinsel nicht</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>„%1“ konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>„%1“ konnte nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>Sie ist zu groß</translation>
    </message>
    <message>
        <source>there is no memory for it</source>
        <translation>Der Arbeitsspeicher reicht dafür nicht</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it holds no brush</source>
        <translation>Sie enthält keinen Pinsel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable brush file: %2.</source>
        <translation>„%1“ ist keine brauchbare Pinseldatei: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListModel</name>
    <message>
        <source>Every setting at its default</source>
        <translation>Alle Einstellungen auf ihrem Standardwert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>„%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Von %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListView</name>
    <message>
        <source>Brushes</source>
        <translation>Pinsel</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetMenu</name>
    <message>
        <source>Save as &amp;New Brush…</source>
        <translation>Als &amp;neuen Pinsel speichern…</translation>
    </message>
    <message>
        <source>&amp;Overwrite with Present Settings…</source>
        <translation>Mit &amp;aktuellen Einstellungen überschreiben…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Favorit</translation>
    </message>
    <message>
        <source>&amp;Import Brushes…</source>
        <translation>Pinsel &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>&amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>Presets Set the &amp;Colour</source>
        <translation>Vorgaben setzen die &amp;Farbe</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureCurveEditor</name>
    <message>
        <source>Pressure curve</source>
        <translation>Druckkurve</translation>
    </message>
    <message>
        <source>Arrows move a point, Ctrl with left and right chooses one, Insert adds one, Delete takes it away</source>
        <translation>Pfeiltasten bewegen einen Punkt, Strg mit links und rechts wählt einen, Insert fügt einen hinzu, Delete entfernt ihn</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureDialog</name>
    <message>
        <source>Pen Pressure</source>
        <translation>Stiftdruck</translation>
    </message>
    <message>
        <source>Clear the &amp;Sheet</source>
        <translation>&amp;Blatt leeren</translation>
    </message>
    <message>
        <source>Draw here to try it</source>
        <translation>Hier zeichnen, um zu testen</translation>
    </message>
    <message>
        <source>So&amp;ft</source>
        <translation>&amp;Weich</translation>
    </message>
    <message>
        <source>&amp;Linear</source>
        <translation>&amp;Linear</translation>
    </message>
    <message>
        <source>Fir&amp;m</source>
        <translation>&amp;Fest</translation>
    </message>
    <message>
        <source>The pen&apos;s %1 % count as %2 %</source>
        <translation>%1&#xa0;% des Stifts gelten als %2&#xa0;%</translation>
    </message>
    <message>
        <source>No pen presses</source>
        <translation>Kein Stift drückt</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureTester</name>
    <message>
        <source>Sheet to try the pressure on</source>
        <translation>Blatt zum Testen des Drucks</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterReader</name>
    <message>
        <source>its layers have too many pixels together</source>
        <translation>Ihre Ebenen haben zusammen zu viele Pixel</translation>
    </message>
    <message>
        <source>it is no OpenRaster picture, or damaged</source>
        <translation>Sie ist kein OpenRaster-Bild oder beschädigt</translation>
    </message>
    <message>
        <source>the picture of its layer &quot;%1&quot; is missing or damaged</source>
        <translation>Das Bild der Ebene „%1“ fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>Nicht genug Arbeitsspeicher</translation>
    </message>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>Dieses dabpainter wurde ohne QuaZip gebaut, das OpenRaster benötigt</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>Das Archiv ist beschädigt</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterWriter</name>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>Dieses dabpainter wurde ohne QuaZip gebaut, das OpenRaster benötigt</translation>
    </message>
    <message>
        <source>there is no memory for the file</source>
        <translation>Der Arbeitsspeicher reicht für die Datei nicht</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecentFiles</name>
    <message>
        <source>No picture yet</source>
        <translation>Noch kein Bild</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecordingSign</name>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>What is painted is recorded: stop it, or export it</source>
        <translation>Was gemalt wird, wird aufgenommen: anhalten oder exportieren</translation>
    </message>
    <message>
        <source>A recording runs</source>
        <translation>Eine Aufnahme läuft</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SampleStroke</name>
    <message>
        <source>A stroke with the present brush</source>
        <translation>Ein Strich mit dem aktuellen Pinsel</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SelectionEditor</name>
    <message>
        <source>The layer is hidden</source>
        <translation>Die Ebene ist ausgeblendet</translation>
    </message>
    <message>
        <source>Nothing of this layer is selected</source>
        <translation>Von dieser Ebene ist nichts ausgewählt</translation>
    </message>
    <message>
        <source>The canvas takes no picture now; the log says why.</source>
        <translation>Die Leinwand nimmt gerade kein Bild an; das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>The layer&apos;s alpha is locked</source>
        <translation>Das Alpha der Ebene ist gesperrt</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SessionRecorder</name>
    <message>
        <source>The recording cannot be written: %1.</source>
        <translation>Die Aufnahme kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The canvas cannot be recorded; the log says why.</source>
        <translation>Die Leinwand kann nicht aufgenommen werden; das Protokoll sagt, warum.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Nichts wurde aufgenommen.</translation>
    </message>
    <message>
        <source>The recording could not be written down: %1.</source>
        <translation>Die Aufnahme konnte nicht festgehalten werden: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>„%1“ kann nicht gespeichert werden: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShadeTriangle</name>
    <message>
        <source>Lightness and chroma</source>
        <translation>Helligkeit und Chroma</translation>
    </message>
    <message>
        <source>Lightness and chroma: drag, or the arrow keys</source>
        <translation>Helligkeit und Chroma: ziehen oder Pfeiltasten</translation>
    </message>
    <message>
        <source>Lightness %1 %, chroma %2</source>
        <translation>Helligkeit %1&#xa0;%, Chroma %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShortcutsDialog</name>
    <message>
        <source>&amp;Assign</source>
        <translation>&amp;Zuweisen</translation>
    </message>
    <message>
        <source>&amp;No Key</source>
        <translation>&amp;Keine Taste</translation>
    </message>
    <message>
        <source>&amp;Usual Key</source>
        <translation>&amp;Standardtaste</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Befehle und Tasten suchen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Neue Taste</translation>
    </message>
    <message>
        <source>All &amp;Usual</source>
        <translation>&amp;Alle auf Standard</translation>
    </message>
    <message>
        <source>&amp;Take It</source>
        <translation>&amp;Trotzdem zuweisen</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;, which would have none then.</source>
        <translation>%1 ist die Taste für „%2“; dieser Befehl hätte dann keine mehr.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StabiliserControl</name>
    <message>
        <source>Unsteadied</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source>Averaged</source>
        <translation>Gemittelt</translation>
    </message>
    <message>
        <source>Pulled string</source>
        <translation>Gezogene Schnur</translation>
    </message>
    <message>
        <source>What steadies the hand</source>
        <translation>Was die Hand beruhigt</translation>
    </message>
    <message>
        <source>What steadies the hand; each brush remembers its own</source>
        <translation>Was die Hand beruhigt; jeder Pinsel merkt sich seins</translation>
    </message>
    <message>
        <source>How much the hand is steadied</source>
        <translation>Wie stark die Hand beruhigt wird</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Bis ans Ende</translation>
    </message>
    <message>
        <source>At its end a line goes on to where the pointer is</source>
        <translation>Am Ende läuft eine Linie bis zum Zeiger weiter</translation>
    </message>
    <message>
        <source>The string is %1 points long</source>
        <translation>Die Schnur ist %1 Punkte lang</translation>
    </message>
    <message>
        <source>Follows within %1 s</source>
        <translation>Folgt binnen %1&#xa0;s</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StackReader</name>
    <message>
        <source>Some layers have blend modes that are not known here; they are shown as normal.</source>
        <translation>Einige Ebenen haben hier unbekannte Mischmodi; sie werden normal gezeigt.</translation>
    </message>
    <message>
        <source>a layer lies too far from the picture</source>
        <translation>Eine Ebene liegt zu weit vom Bild entfernt</translation>
    </message>
    <message>
        <source>Groups of layers have come apart, and may look another way.</source>
        <translation>Ebenengruppen wurden aufgelöst und sehen womöglich anders aus.</translation>
    </message>
    <message>
        <source>its groups lie too deep in each other</source>
        <translation>Ihre Gruppen sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the picture of a layer lies outside of the archive</source>
        <translation>Das Bild einer Ebene liegt außerhalb des Archivs</translation>
    </message>
    <message>
        <source>it has more than %1 layers</source>
        <translation>Sie hat mehr als %1 Ebenen</translation>
    </message>
    <message>
        <source>Some of its contents are no layers of pixels, and are left out.</source>
        <translation>Einige Inhalte sind keine Pixelebenen und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>its list of layers is damaged (%1)</source>
        <translation>Ihre Ebenenliste ist beschädigt (%1)</translation>
    </message>
    <message>
        <source>it has no layers</source>
        <translation>Sie hat keine Ebenen</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SwatchGrid</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::TimelapseExport</name>
    <message>
        <source>There is no memory for the time-lapse.</source>
        <translation>Für den Zeitraffer fehlt der Speicher.</translation>
    </message>
    <message>
        <source>The recording</source>
        <translation>Die Aufnahme</translation>
    </message>
</context>
</TS>
