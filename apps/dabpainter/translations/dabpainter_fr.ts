<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Dabpainter</source>
        <translation>À propos de Dabpainter</translation>
    </message>
    <message>
        <source>Dabpainter %1 paints with natural-media brushes. Whoever reports a fault may add this:</source>
        <translation>Dabpainter %1 peint avec des brosses naturelles. Pour signaler un défaut, vous pouvez joindre ceci&#x202f;:</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Painter&apos;s Guide</source>
        <translation>Guide du peintre</translation>
    </message>
</context>
<context>
    <name>Tables</name>
    <message>
        <source>A ball that skips a little and lays down more ink where it is pressed.</source>
        <translation>Une bille qui saute un peu et dépose plus d’encre quand on appuie.</translation>
    </message>
    <message>
        <source>A blunt greasy crayon that skips the paper&apos;s pits.</source>
        <translation>Une craie grasse émoussée qui saute les creux du papier.</translation>
    </message>
    <message>
        <source>A broad nib held at 45 degrees: thick and thin come of the direction.</source>
        <translation>Une plume large tenue à 45 degrés&#x202f;: pleins et déliés naissent de la direction.</translation>
    </message>
    <message>
        <source>A drawing pen of one width, whatever the hand does.</source>
        <translation>Un stylo à dessin d’une seule largeur, quoi que fasse la main.</translation>
    </message>
    <message>
        <source>A fibre pen whose edge frays a little on the paper.</source>
        <translation>Un stylo-fibre dont le bord bave légèrement sur le papier.</translation>
    </message>
    <message>
        <source>A fingertip that drags wet paint along.</source>
        <translation>Un bout de doigt qui entraîne la peinture fraîche.</translation>
    </message>
    <message>
        <source>A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.</source>
        <translation>Une brosse plate aux bords nets pour les aplats, qui entraîne des traînées de ce qu’elle rencontre.</translation>
    </message>
    <message>
        <source>A flat wash brush with straight ends and a dark rim along both sides.</source>
        <translation>Un pinceau à lavis plat, aux extrémités droites et au liseré sombre de chaque côté.</translation>
    </message>
    <message>
        <source>A flexible steel nib that swells under pressure and runs out in points.</source>
        <translation>Une plume d’acier souple qui s’élargit sous la pression et finit en pointe.</translation>
    </message>
    <message>
        <source>A full pointed brush of ink, from a hair to a broad stroke.</source>
        <translation>Un pinceau pointu chargé d’encre, du trait fin comme un cheveu au trait large.</translation>
    </message>
    <message>
        <source>A hard square crayon, broad across its edge and thin along it, on laid paper.</source>
        <translation>Un bâton carré et dur, large par le travers et fin dans le sens de l’arête, sur papier vergé.</translation>
    </message>
    <message>
        <source>A hard stick of chalk whose face breaks up over the tooth.</source>
        <translation>Un bâton de craie dure dont la face se brise sur le grain.</translation>
    </message>
    <message>
        <source>A jet with too much air, in drops that stay apart.</source>
        <translation>Un jet avec trop d’air, en gouttes qui restent séparées.</translation>
    </message>
    <message>
        <source>A natural sponge dabbed about, with pores of all sizes.</source>
        <translation>Une éponge naturelle tamponnée, aux pores de toutes tailles.</translation>
    </message>
    <message>
        <source>A pen for the mouse: slow lines are wide and quick ones thin.</source>
        <translation>Une plume pour la souris&#x202f;: les traits lents sont larges, les rapides fins.</translation>
    </message>
    <message>
        <source>A pointed round of sable: transparent colour that dries with a dark rim.</source>
        <translation>Un pinceau rond pointu en martre&#x202f;: couleur transparente qui sèche avec un liseré sombre.</translation>
    </message>
    <message>
        <source>A rounded brush for soft-ended strokes that pick up their neighbours&apos; colour.</source>
        <translation>Un pinceau arrondi pour des traits aux bouts doux qui prennent la couleur de leurs voisins.</translation>
    </message>
    <message>
        <source>A slanted marker: broad one way, thin the other, transparent.</source>
        <translation>Un marqueur biseauté&#x202f;: large dans un sens, fin dans l’autre, transparent.</translation>
    </message>
    <message>
        <source>A soft dry brush that blurs the border between colours.</source>
        <translation>Un pinceau doux et sec qui estompe la limite entre les couleurs.</translation>
    </message>
    <message>
        <source>A soft jet of colour that builds up with every pass.</source>
        <translation>Un jet doux de couleur qui s’accumule à chaque passage.</translation>
    </message>
    <message>
        <source>A soft pencil; tilt it to shade with the side of its lead.</source>
        <translation>Un crayon tendre&#x202f;; inclinez-le pour ombrer avec le côté de la mine.</translation>
    </message>
    <message>
        <source>A steel blade that lays a film of paint and scrapes the colours below along.</source>
        <translation>Une lame d’acier qui dépose un film de peinture et racle les couleurs du dessous.</translation>
    </message>
    <message>
        <source>A stick of charcoal: dusty when light, black where it is pressed.</source>
        <translation>Un bâton de fusain&#x202f;: poudreux quand il effleure, noir quand on appuie.</translation>
    </message>
    <message>
        <source>A stiff brush with little paint, whose hairs each leave a scratch.</source>
        <translation>Une brosse raide et peu chargée, dont chaque poil laisse une griffure.</translation>
    </message>
    <message>
        <source>A thin lead that is always sharp, for lines of one width.</source>
        <translation>Une mine fine toujours taillée, pour des traits d’une seule largeur.</translation>
    </message>
    <message>
        <source>A transparent marker that darkens where strokes cross.</source>
        <translation>Un marqueur transparent qui fonce là où les traits se croisent.</translation>
    </message>
    <message>
        <source>A well sharpened HB pencil on drawing paper.</source>
        <translation>Un crayon HB bien taillé sur papier à dessin.</translation>
    </message>
    <message>
        <source>A wide and faint mist for shadows and glows.</source>
        <translation>Une brume large et légère pour les ombres et les lueurs.</translation>
    </message>
    <message>
        <source>Acrylic</source>
        <translation>Acrylique</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Aérographe</translation>
    </message>
    <message>
        <source>All around</source>
        <translation>Tout autour</translation>
    </message>
    <message>
        <source>Amount of own colour on a smudge brush; 0 only moves what is there.</source>
        <translation>Quantité de couleur propre d’une brosse d’étalement&#x202f;; à 0, elle ne fait que déplacer l’existant.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Angle influences</source>
        <translation>Influences angle</translation>
    </message>
    <message>
        <source>Angle jitter</source>
        <translation>Aléa d’angle</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Tels quels</translation>
    </message>
    <message>
        <source>At least three pixels</source>
        <translation>Au moins trois pixels</translation>
    </message>
    <message>
        <source>Autumn Leaves</source>
        <translation>Feuilles d’automne</translation>
    </message>
    <message>
        <source>Ballpoint</source>
        <translation>Stylo à bille</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Derrière</translation>
    </message>
    <message>
        <source>Bleeding Wash</source>
        <translation>Lavis fusant</translation>
    </message>
    <message>
        <source>Blend fragment shader string</source>
        <translation>Texte du fragment shader de fusion</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Blur of the live preview brush when its stroke is placed, in preview pixels.</source>
        <translation>Flou de la brosse d’aperçu en direct quand son trait est posé, en pixels d’aperçu.</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <source>Brightness jitter</source>
        <translation>Aléa de luminosité</translation>
    </message>
    <message>
        <source>Bristles</source>
        <translation>Poils</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Brosse</translation>
    </message>
    <message>
        <source>Brush Pen</source>
        <translation>Stylo-pinceau</translation>
    </message>
    <message>
        <source>Brush colour; its alpha is not used, opacity and flow are.</source>
        <translation>Couleur de la brosse&#x202f;; son alpha ne sert pas, opacité et flux le remplacent.</translation>
    </message>
    <message>
        <source>Brush tip: the tip images, or one that is drawn.</source>
        <translation>Pointe de la brosse&#x202f;: les images de pointe, ou une pointe dessinée.</translation>
    </message>
    <message>
        <source>By how much</source>
        <translation>De combien</translation>
    </message>
    <message>
        <source>Calligraphy Nib</source>
        <translation>Plume calligraphique</translation>
    </message>
    <message>
        <source>Canvas colour</source>
        <translation>Couleur de toile</translation>
    </message>
    <message>
        <source>Chalk</source>
        <translation>Craie</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Fusain</translation>
    </message>
    <message>
        <source>Chisel Marker</source>
        <translation>Marqueur biseauté</translation>
    </message>
    <message>
        <source>Clumps of hairs as apart as a comb&apos;s teeth, for fur, grass and grain of wood.</source>
        <translation>Des touffes de poils espacées comme les dents d’un peigne, pour la fourrure, l’herbe et les veines du bois.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Colour dropped into wet paper, which runs out in fingers as it likes.</source>
        <translation>De la couleur déposée sur papier mouillé, qui fuse à sa guise en ramifications.</translation>
    </message>
    <message>
        <source>Colour influences</source>
        <translation>Influences couleur</translation>
    </message>
    <message>
        <source>Colour jitter</source>
        <translation>Aléa de couleur</translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation>Confettis</translation>
    </message>
    <message>
        <source>Conte</source>
        <translation>Conté</translation>
    </message>
    <message>
        <source>Dabs</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Dabs at each place of the second line, whole; at most 64 are drawn.</source>
        <translation>Touches à chaque emplacement du second trait, en nombre entier&#x202f;; 64 au plus sont dessinées.</translation>
    </message>
    <message>
        <source>Dabs at each place, whole; at most 64 are drawn.</source>
        <translation>Touches à chaque emplacement, en nombre entier&#x202f;; 64 au plus sont dessinées.</translation>
    </message>
    <message>
        <source>Dabs influences</source>
        <translation>Influences touches</translation>
    </message>
    <message>
        <source>Dabs jitter</source>
        <translation>Aléa de touches</translation>
    </message>
    <message>
        <source>Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no soft edge.</source>
        <translation>Les touches sont droites, calées sur des pixels entiers et d’une taille en pixels entiers&#x202f;: les pointes carrées n’ont pas de bord flou.</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Assombrir</translation>
    </message>
    <message>
        <source>Depth influences</source>
        <translation>Influences profondeur</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Distance from dab to dab as a fraction of the dab&apos;s size.</source>
        <translation>Distance d’une touche à l’autre, en fraction de la taille de touche.</translation>
    </message>
    <message>
        <source>Distance from dab to dab of the second line as a fraction of the dab&apos;s size.</source>
        <translation>Distance d’une touche à l’autre du second trait, en fraction de la taille de touche.</translation>
    </message>
    <message>
        <source>Distance per pointer sample, in buffer pixels, that counts as fully fast.</source>
        <translation>Distance par échantillon du pointeur, en pixels de l’image, qui compte comme vitesse maximale.</translation>
    </message>
    <message>
        <source>Divides the points handed to shape recognition.</source>
        <translation>Divise les points transmis à la reconnaissance de formes.</translation>
    </message>
    <message>
        <source>Draws a second line with a tip of its own and paints only where both are.</source>
        <translation>Trace un second trait avec sa propre pointe et ne peint que là où les deux se rencontrent.</translation>
    </message>
    <message>
        <source>Draws curves through the pointer samples instead of straight lines.</source>
        <translation>Trace des courbes entre les échantillons du pointeur au lieu de droites.</translation>
    </message>
    <message>
        <source>Dry Bristle</source>
        <translation>Brosse sèche</translation>
    </message>
    <message>
        <source>Edge of a generated tip: 0 soft, 1 hard.</source>
        <translation>Bord d’une pointe générée&#x202f;: 0 doux, 1 dur.</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>Largeur du bord</translation>
    </message>
    <message>
        <source>End size</source>
        <translation>Taille finale</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Even spacing</source>
        <translation>Espacement égal</translation>
    </message>
    <message>
        <source>Fallen leaves of four kinds, between two colours.</source>
        <translation>Des feuilles mortes de quatre sortes, entre deux couleurs.</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Éventail</translation>
    </message>
    <message>
        <source>Fast from</source>
        <translation>Rapide dès</translation>
    </message>
    <message>
        <source>Felt Tip</source>
        <translation>Feutre</translation>
    </message>
    <message>
        <source>Filled outline</source>
        <translation>Contour rempli</translation>
    </message>
    <message>
        <source>Fills what the pen goes around while it goes.</source>
        <translation>Remplit ce que le stylet entoure, au fur et à mesure.</translation>
    </message>
    <message>
        <source>Flat Watercolour</source>
        <translation>Aquarelle (plat)</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>Miroir horiz.</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>Flow influences</source>
        <translation>Influences flux</translation>
    </message>
    <message>
        <source>Flow jitter</source>
        <translation>Aléa de flux</translation>
    </message>
    <message>
        <source>Follow size by</source>
        <translation>Lien de taille</translation>
    </message>
    <message>
        <source>Follow stroke</source>
        <translation>Suivre le trait</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Gouache Dry</source>
        <translation>Gouache sèche</translation>
    </message>
    <message>
        <source>Grainy Airbrush</source>
        <translation>Aérographe grenu</translation>
    </message>
    <message>
        <source>Hairs without paint that draw one colour into the other in fine streaks.</source>
        <translation>Des poils sans peinture qui tirent une couleur dans l’autre en fines traînées.</translation>
    </message>
    <message>
        <source>Hard Eraser</source>
        <translation>Gomme dure</translation>
    </message>
    <message>
        <source>Hard Pixel</source>
        <translation>Pixel net</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>Dureté</translation>
    </message>
    <message>
        <source>Height of the dab relative to its width.</source>
        <translation>Hauteur de la touche par rapport à sa largeur.</translation>
    </message>
    <message>
        <source>How a stroke meets the canvas; any other number, as normal.</source>
        <translation>Façon dont un trait rencontre la toile&#x202f;; tout autre nombre équivaut à «&#x202f;Normal&#x202f;».</translation>
    </message>
    <message>
        <source>How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as they are thinner, or both.</source>
        <translation>Façon de dessiner les touches de moins de 3 pixels&#x202f;: telles quelles, larges de 3 pixels, d’autant plus pâles qu’elles sont fines, ou les deux.</translation>
    </message>
    <message>
        <source>How far dabs scatter, in dab sizes.</source>
        <translation>Portée de la dispersion des touches, en tailles de touche.</translation>
    </message>
    <message>
        <source>How far that rim reaches into the stroke, in buffer pixels.</source>
        <translation>Distance dont ce liseré pénètre dans le trait, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 what lay under the dab before alone, 1 what they hold, at first loadQuantity of the brush colour, taking up more the wetter.</source>
        <translation>Part de couleur que les poils d’une brosse d’étalement portent le long du trait, chacun la sienne&#x202f;: 0 seulement ce qui se trouvait sous la touche précédente, 1 ce qu’ils contiennent, d’abord la couleur de brosse selon «&#x202f;Couleur propre&#x202f;», en prélevant d’autant plus qu’ils sont humides.</translation>
    </message>
    <message>
        <source>How far the paper&apos;s heights decide: light dabs catch its tops alone, firm ones and full flow fill its valleys; 0 not at all.</source>
        <translation>Rôle du relief du papier&#x202f;: les touches légères n’en accrochent que les crêtes, les touches fermes à plein flux en remplissent les creux&#x202f;; 0 aucun.</translation>
    </message>
    <message>
        <source>How far the second line&apos;s dabs scatter, in dab sizes.</source>
        <translation>Portée de la dispersion des touches du second trait, en tailles de touche.</translation>
    </message>
    <message>
        <source>How much paint one dab lays down; dabs build up where they overlap.</source>
        <translation>Quantité de peinture déposée par une touche&#x202f;; les touches s’accumulent là où elles se recouvrent.</translation>
    </message>
    <message>
        <source>How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at all, 1 until nothing is left of it.</source>
        <translation>De combien l’intérieur d’un trait sèche plus pâle que son liseré, comme l’aquarelle&#x202f;: 0 pas du tout, 1 jusqu’à ce qu’il n’en reste rien.</translation>
    </message>
    <message>
        <source>How quickly the measured speed follows the pointer.</source>
        <translation>Rapidité avec laquelle la vitesse mesurée suit le pointeur.</translation>
    </message>
    <message>
        <source>How the second line&apos;s size follows radius; any other number, not at all.</source>
        <translation>Façon dont la taille du second trait suit celle de la brosse&#x202f;; tout autre nombre&#x202f;: pas du tout.</translation>
    </message>
    <message>
        <source>Hue jitter</source>
        <translation>Aléa de teinte</translation>
    </message>
    <message>
        <source>Image influences</source>
        <translation>Influences image</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur la fermeté de la touche sur le papier, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on that number, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur ce nombre, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the flow, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur le flux, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the mixing, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur le mélange, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the rotation, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur la rotation, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the roundness, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur l’arrondi, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the scatter, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur la dispersion, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the size, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur la taille, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each.</source>
        <translation>Influence de la pression, de l’inclinaison et de la vitesse sur le choix de l’image de pointe, de -1 à 1 chacune.</translation>
    </message>
    <message>
        <source>Ink Pen</source>
        <translation>Plume</translation>
    </message>
    <message>
        <source>Ink Spatter</source>
        <translation>Éclaboussures</translation>
    </message>
    <message>
        <source>Ink flicked off a brush, in blots that burst and drops that fly.</source>
        <translation>De l’encre projetée d’un coup de pinceau, en taches qui éclatent et gouttes qui volent.</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Taille max.</translation>
    </message>
    <message>
        <source>Largest size, as a fraction of radius.</source>
        <translation>Taille maximale, en fraction de la taille de brosse.</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Least flow</source>
        <translation>Flux minimal</translation>
    </message>
    <message>
        <source>Length of that ramp, in dabs.</source>
        <translation>Longueur de cette montée, en touches.</translation>
    </message>
    <message>
        <source>Length of the start taper, in buffer pixels.</source>
        <translation>Longueur de l’effilement au début, en pixels de l’image.</translation>
    </message>
    <message>
        <source>Lets the paper through more, or less, all over.</source>
        <translation>Laisse passer le papier plus ou moins, partout.</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Live Fill</source>
        <translation>Remplissage direct</translation>
    </message>
    <message>
        <source>Lower bound of the influenced flow, as a fraction of flow.</source>
        <translation>Borne inférieure du flux influencé, en fraction du flux.</translation>
    </message>
    <message>
        <source>Lower bound of the roundness.</source>
        <translation>Borne inférieure de l’arrondi.</translation>
    </message>
    <message>
        <source>Meadow Grass</source>
        <translation>Herbe des prés</translation>
    </message>
    <message>
        <source>Mechanical Pencil</source>
        <translation>Porte-mine</translation>
    </message>
    <message>
        <source>Mirrors every other dab left to right, at random.</source>
        <translation>Inverse au hasard une touche sur deux de gauche à droite.</translation>
    </message>
    <message>
        <source>Mirrors every other dab top to bottom, at random.</source>
        <translation>Inverse au hasard une touche sur deux de haut en bas.</translation>
    </message>
    <message>
        <source>Mirrors the tip left to right.</source>
        <translation>Inverse la pointe de gauche à droite.</translation>
    </message>
    <message>
        <source>Mirrors the tip top to bottom.</source>
        <translation>Inverse la pointe de haut en bas.</translation>
    </message>
    <message>
        <source>Most flow</source>
        <translation>Flux maximal</translation>
    </message>
    <message>
        <source>Much water and little pigment, in pools that dry unevenly and leave a rim.</source>
        <translation>Beaucoup d’eau et peu de pigment, en flaques qui sèchent inégalement et laissent un liseré.</translation>
    </message>
    <message>
        <source>Multicolour</source>
        <translation>Multicolore</translation>
    </message>
    <message>
        <source>Multicolour: the tip&apos;s own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters.</source>
        <translation>Multicolore&#x202f;: les couleurs de la pointe elle-même peignent (la couleur de brosse là où elle est noire), chaque touche variant selon les aléas de teinte, de saturation et de luminosité.</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplier</translation>
    </message>
    <message>
        <source>No smudging</source>
        <translation>Sans étalement</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Number of dabs after which the paint has run out; 0 or 1 for never.</source>
        <translation>Nombre de touches après lequel la peinture est épuisée&#x202f;; 0 ou 1 pour jamais.</translation>
    </message>
    <message>
        <source>Oil Filbert</source>
        <translation>Langue de chat</translation>
    </message>
    <message>
        <source>Oil Flat</source>
        <translation>Huile (plat)</translation>
    </message>
    <message>
        <source>Oil Impasto</source>
        <translation>Huile empâtée</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Opacity of a stroke as a whole, however often it crosses itself.</source>
        <translation>Opacité du trait dans son ensemble, même s’il se recoupe.</translation>
    </message>
    <message>
        <source>Opaque matt paint, a little uneven in tone, that breaks up on rough paper.</source>
        <translation>Une peinture mate et opaque, au ton un peu inégal, qui se brise sur le papier rugueux.</translation>
    </message>
    <message>
        <source>Outline blur</source>
        <translation>Flou du contour</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>Couleur propre</translation>
    </message>
    <message>
        <source>Paint from a can: coarse drops all over the jet, more of them under pressure.</source>
        <translation>De la peinture en bombe&#x202f;: de grosses gouttes dans tout le jet, plus nombreuses sous la pression.</translation>
    </message>
    <message>
        <source>Paints through the paper given as the mask image.</source>
        <translation>Peint à travers le papier fourni comme image de masque.</translation>
    </message>
    <message>
        <source>Palette Knife</source>
        <translation>Couteau à peindre</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper brightness</source>
        <translation>Clarté du papier</translation>
    </message>
    <message>
        <source>Paper contrast</source>
        <translation>Contraste papier</translation>
    </message>
    <message>
        <source>Paper depth</source>
        <translation>Relief du papier</translation>
    </message>
    <message>
        <source>Paper scale</source>
        <translation>Échelle papier</translation>
    </message>
    <message>
        <source>Paper scraps of all colours, thrown wide.</source>
        <translation>Des bouts de papier de toutes les couleurs, jetés au large.</translation>
    </message>
    <message>
        <source>Paper, repeated over the canvas: white lets paint through, black and transparent hold it back.</source>
        <translation>Papier, répété sur la toile&#x202f;: le blanc laisse passer la peinture, le noir et le transparent la retiennent.</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Pencil 2B</source>
        <translation>Crayon 2B</translation>
    </message>
    <message>
        <source>Picks one of several tip images at random for each dab.</source>
        <translation>Choisit au hasard une image de pointe parmi plusieurs pour chaque touche.</translation>
    </message>
    <message>
        <source>Pixel aligned</source>
        <translation>Calé sur pixels</translation>
    </message>
    <message>
        <source>Plastic paint from a bristle brush: covers at once and keeps the hairs&apos; furrows.</source>
        <translation>De la peinture plastique à la brosse&#x202f;: elle couvre d’emblée et garde les sillons des poils.</translation>
    </message>
    <message>
        <source>Pointer samples gathered before a segment is drawn: higher is steadier and lags more.</source>
        <translation>Échantillons du pointeur réunis avant de tracer un segment&#x202f;: plus il y en a, plus le trait est stable et en retard.</translation>
    </message>
    <message>
        <source>Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile.</source>
        <translation>Met à la place du trait la forme qu’il voulait être, ou rien&#x202f;; les types de brosse 3 et 4 tracent entre-temps de simples touches.</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>Peigne</translation>
    </message>
    <message>
        <source>Ramp length</source>
        <translation>Durée de montée</translation>
    </message>
    <message>
        <source>Ramp up</source>
        <translation>Montée</translation>
    </message>
    <message>
        <source>Ramps the mixed amount up over a smudge stroke&apos;s first dabs.</source>
        <translation>Augmente la quantité mélangée sur les premières touches d’un trait d’étalement.</translation>
    </message>
    <message>
        <source>Random across</source>
        <translation>Hasard horiz.</translation>
    </message>
    <message>
        <source>Random image</source>
        <translation>Image au hasard</translation>
    </message>
    <message>
        <source>Random mixing of each dab toward the secondary colour, 0 to 1.</source>
        <translation>Mélange aléatoire de chaque touche vers la couleur secondaire, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random rotation of each dab, 0 to 1 for up to half a turn either way.</source>
        <translation>Rotation aléatoire de chaque touche, de 0 à 1 pour un demi-tour au plus dans chaque sens.</translation>
    </message>
    <message>
        <source>Random shrinking of dabs, 0 to 1.</source>
        <translation>Rétrécissement aléatoire des touches, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random start</source>
        <translation>Départ au hasard</translation>
    </message>
    <message>
        <source>Random upright</source>
        <translation>Hasard vertical</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s brightness, 0 to 1.</source>
        <translation>Variation aléatoire de la luminosité de chaque touche, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s hue, 0 to 1.</source>
        <translation>Variation aléatoire de la teinte de chaque touche, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s saturation, 0 to 1.</source>
        <translation>Variation aléatoire de la saturation de chaque touche, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random variation of that number, 0 to 1.</source>
        <translation>Variation aléatoire de ce nombre, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random variation of the flow, 0 to 1.</source>
        <translation>Variation aléatoire du flux, de 0 à 1.</translation>
    </message>
    <message>
        <source>Random variation of the roundness, 0 to 1.</source>
        <translation>Variation aléatoire de l’arrondi, de 0 à 1.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Recog point scale</source>
        <translation>Diviseur de points</translation>
    </message>
    <message>
        <source>Recogition</source>
        <translation>Reconnaissance</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>Reconnaissance</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Anneau</translation>
    </message>
    <message>
        <source>Rotation of the tip in radians, counter-clockwise.</source>
        <translation>Rotation de la pointe en radians, dans le sens antihoraire.</translation>
    </message>
    <message>
        <source>Round Marker</source>
        <translation>Marqueur rond</translation>
    </message>
    <message>
        <source>Round Watercolour</source>
        <translation>Aquarelle (rond)</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Rectangle arrondi</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Arrondi</translation>
    </message>
    <message>
        <source>Roundness influences</source>
        <translation>Influences arrondi</translation>
    </message>
    <message>
        <source>Roundness jitter</source>
        <translation>Aléa d’arrondi</translation>
    </message>
    <message>
        <source>Rubs out all, to a clean edge.</source>
        <translation>Efface tout, jusqu’à un bord net.</translation>
    </message>
    <message>
        <source>Runs dry after</source>
        <translation>À sec après</translation>
    </message>
    <message>
        <source>Saturation jitter</source>
        <translation>Aléa de saturation</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>Dispersion</translation>
    </message>
    <message>
        <source>Scatter influences</source>
        <translation>Influences dispersion</translation>
    </message>
    <message>
        <source>Scatters dabs all around instead of only across the stroke.</source>
        <translation>Disperse les touches tout autour et pas seulement en travers du trait.</translation>
    </message>
    <message>
        <source>Scatters the second line&apos;s dabs all around instead of only across the stroke.</source>
        <translation>Disperse les touches du second trait tout autour et pas seulement en travers du trait.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Couleur second.</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>Second trait</translation>
    </message>
    <message>
        <source>Secondary colour, toward which the colour jitter mixes.</source>
        <translation>Couleur secondaire, vers laquelle mélange l’aléa de couleur.</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Size at the start of the stroke&apos;s taper, as a fraction of radius; 0 for no taper.</source>
        <translation>Taille au début de l’effilement du trait, en fraction de la taille de brosse&#x202f;; 0 pour aucun effilement.</translation>
    </message>
    <message>
        <source>Size at the very end of the stroke, as a fraction of radius; 0 for no taper.</source>
        <translation>Taille tout au bout du trait, en fraction de la taille de brosse&#x202f;; 0 pour aucun effilement.</translation>
    </message>
    <message>
        <source>Size influences</source>
        <translation>Influences taille</translation>
    </message>
    <message>
        <source>Size jitter</source>
        <translation>Aléa de taille</translation>
    </message>
    <message>
        <source>Size of a full dab across, in buffer pixels.</source>
        <translation>Diamètre d’une touche pleine, en pixels de l’image.</translation>
    </message>
    <message>
        <source>Size of one paper tile on the canvas, relative to the mask image.</source>
        <translation>Taille d’un carreau de papier sur la toile, par rapport à l’image de masque.</translation>
    </message>
    <message>
        <source>Size of the second line&apos;s dabs, in buffer pixels.</source>
        <translation>Taille des touches du second trait, en pixels de l’image.</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Taille min.</translation>
    </message>
    <message>
        <source>Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest.</source>
        <translation>Taille minimale, en fraction de la taille de brosse. Sans influences, les touches sont dessinées à mi-chemin entre minimum et maximum.</translation>
    </message>
    <message>
        <source>Smooth curves</source>
        <translation>Courbes lisses</translation>
    </message>
    <message>
        <source>Smudge</source>
        <translation>Étalement</translation>
    </message>
    <message>
        <source>Smudge Finger</source>
        <translation>Doigt</translation>
    </message>
    <message>
        <source>Soft Airbrush</source>
        <translation>Aérographe doux</translation>
    </message>
    <message>
        <source>Soft Blender</source>
        <translation>Blaireau doux</translation>
    </message>
    <message>
        <source>Soft Eraser</source>
        <translation>Gomme douce</translation>
    </message>
    <message>
        <source>Soft Pastel</source>
        <translation>Pastel tendre</translation>
    </message>
    <message>
        <source>Soft disc</source>
        <translation>Disque doux</translation>
    </message>
    <message>
        <source>Soft pastel: powder that fills the tooth and blooms under pressure.</source>
        <translation>Pastel tendre&#x202f;: une poudre qui remplit le grain et s’épanouit sous la pression.</translation>
    </message>
    <message>
        <source>Source of one of the blend programs, which selects its blend type.</source>
        <translation>Source d’un des programmes de fusion, qui en sélectionne le type de fusion.</translation>
    </message>
    <message>
        <source>Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.</source>
        <translation>Espace les touches également le long du trait&#x202f;; sinon, chaque échantillon du pointeur donne une touche.</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Speed Pen</source>
        <translation>Plume à vitesse</translation>
    </message>
    <message>
        <source>Speed response</source>
        <translation>Réactivité</translation>
    </message>
    <message>
        <source>Sponge</source>
        <translation>Éponge</translation>
    </message>
    <message>
        <source>Spray Can</source>
        <translation>Bombe aérosol</translation>
    </message>
    <message>
        <source>Start length</source>
        <translation>Longueur initiale</translation>
    </message>
    <message>
        <source>Start size</source>
        <translation>Taille initiale</translation>
    </message>
    <message>
        <source>Steadying</source>
        <translation>Stabilisation</translation>
    </message>
    <message>
        <source>Steepness of the paper&apos;s heights: above 1 its grain has harder edges, 0 is smooth.</source>
        <translation>Raideur du relief du papier&#x202f;: au-dessus de 1, le grain a des bords plus durs&#x202f;; 0 est lisse.</translation>
    </message>
    <message>
        <source>Switches off the smudge behaviour of brush type 3.</source>
        <translation>Désactive l’étalement de la brosse de type 3.</translation>
    </message>
    <message>
        <source>Takes a little away with each pass, without an edge.</source>
        <translation>Enlève un peu à chaque passage, sans bord.</translation>
    </message>
    <message>
        <source>Technical Pen</source>
        <translation>Stylo technique</translation>
    </message>
    <message>
        <source>Textured Gouache</source>
        <translation>Gouache texturée</translation>
    </message>
    <message>
        <source>That difference in buffer pixels, or that ratio.</source>
        <translation>Cette différence en pixels de l’image, ou ce rapport.</translation>
    </message>
    <message>
        <source>The rest of the paint on a brush: broken strokes of single hairs over rough paper.</source>
        <translation>Le reste de peinture d’une brosse&#x202f;: des traits brisés de poils isolés sur un papier rugueux.</translation>
    </message>
    <message>
        <source>Thick paint from a hog&apos;s hair brush, which mixes with what is wet below it.</source>
        <translation>Une peinture épaisse à la brosse en soies de porc, qui se mêle à celle encore fraîche dessous.</translation>
    </message>
    <message>
        <source>Thickness of the ring tip in pixels, or width to height of the rectangle tip.</source>
        <translation>Épaisseur de la pointe en anneau en pixels, ou rapport largeur/hauteur de la pointe rectangulaire.</translation>
    </message>
    <message>
        <source>Thin hairs spread wide, for foliage, fur and hair.</source>
        <translation>Des poils fins largement écartés, pour le feuillage, la fourrure et les cheveux.</translation>
    </message>
    <message>
        <source>Thin lines</source>
        <translation>Traits fins</translation>
    </message>
    <message>
        <source>Thinned flow</source>
        <translation>Flux réduit</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Pointe</translation>
    </message>
    <message>
        <source>Tip image</source>
        <translation>Image pointe</translation>
    </message>
    <message>
        <source>Tip image of the second line.</source>
        <translation>Image de pointe du second trait.</translation>
    </message>
    <message>
        <source>Tip images</source>
        <translation>Images pointe</translation>
    </message>
    <message>
        <source>Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode.</source>
        <translation>Images de pointe du type de pointe 0, jusqu’à 16&#x202f;: l’alpha est la forme&#x202f;; leurs couleurs apparaissent en mode multicolore.</translation>
    </message>
    <message>
        <source>Tip proportion</source>
        <translation>Proportion</translation>
    </message>
    <message>
        <source>True Blender</source>
        <translation>Vrai blaireau</translation>
    </message>
    <message>
        <source>Tufts of grass that stand upright along the stroke.</source>
        <translation>Des touffes d’herbe dressées le long du trait.</translation>
    </message>
    <message>
        <source>Turns the tip by a random angle at the start of every stroke.</source>
        <translation>Tourne la pointe d’un angle aléatoire au début de chaque trait.</translation>
    </message>
    <message>
        <source>Turns the tip into the direction of the stroke.</source>
        <translation>Tourne la pointe dans la direction du trait.</translation>
    </message>
    <message>
        <source>Upper bound of the influenced flow, as a fraction of flow.</source>
        <translation>Borne supérieure du flux influencé, en fraction du flux.</translation>
    </message>
    <message>
        <source>Use paper</source>
        <translation>Avec papier</translation>
    </message>
    <message>
        <source>Watery Wash</source>
        <translation>Lavis dilué</translation>
    </message>
    <message>
        <source>Wax Crayon</source>
        <translation>Craie grasse</translation>
    </message>
    <message>
        <source>Wet edge</source>
        <translation>Bord humide</translation>
    </message>
    <message>
        <source>Wetness</source>
        <translation>Humidité</translation>
    </message>
    <message>
        <source>Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all.</source>
        <translation>Humidité d’une brosse d’étalement&#x202f;: part de la couleur de toile rencontrée qu’elle entraîne, de 0 (rien) à 1 (tout).</translation>
    </message>
    <message>
        <source>What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.</source>
        <translation>Ce que dépose une brosse d’étalement&#x202f;: 0 sa seule couleur propre, 1 la seule couleur de toile.</translation>
    </message>
    <message>
        <source>What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other number, dabs.</source>
        <translation>Ce que devient un trait&#x202f;: des touches, des touches qui étalent, ou un contour rempli montré en direct&#x202f;; tout autre nombre&#x202f;: des touches.</translation>
    </message>
    <message>
        <source>Whole pixels without a soft edge, for pixel art and masks.</source>
        <translation>Des pixels entiers sans bord doux, pour le pixel art et les masques.</translation>
    </message>
    <message>
        <source>acrylic</source>
        <translation>acrylique</translation>
    </message>
    <message>
        <source>airbrush</source>
        <translation>aérographe</translation>
    </message>
    <message>
        <source>blender</source>
        <translation>blaireau</translation>
    </message>
    <message>
        <source>chalk</source>
        <translation>craie</translation>
    </message>
    <message>
        <source>charcoal</source>
        <translation>fusain</translation>
    </message>
    <message>
        <source>crayon</source>
        <translation>cire</translation>
    </message>
    <message>
        <source>dry</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>gomme</translation>
    </message>
    <message>
        <source>fill</source>
        <translation>remplissage</translation>
    </message>
    <message>
        <source>gouache</source>
        <translation>gouache</translation>
    </message>
    <message>
        <source>ink</source>
        <translation>encre</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>marqueur</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>huile</translation>
    </message>
    <message>
        <source>pastel</source>
        <translation>pastel</translation>
    </message>
    <message>
        <source>pencil</source>
        <translation>crayon</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>pixel</translation>
    </message>
    <message>
        <source>smudge</source>
        <translation>étalement</translation>
    </message>
    <message>
        <source>spray</source>
        <translation>aérosol</translation>
    </message>
    <message>
        <source>stamp</source>
        <translation>tampon</translation>
    </message>
    <message>
        <source>tilt</source>
        <translation>inclinaison</translation>
    </message>
    <message>
        <source>watercolour</source>
        <translation>aquarelle</translation>
    </message>
    <message>
        <source>wet</source>
        <translation>humide</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter</name>
    <message>
        <source>a canvas is at least 1 x 1 pixel large</source>
        <translation>une toile mesure au moins 1 x 1 pixel</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a side has at most %3</source>
        <translation>%1 x %2 pixels, c’est trop grand&#x202f;: un côté en compte au plus %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a canvas has at most %3 million</source>
        <translation>%1 x %2 pixels, c’est trop grand&#x202f;: une toile en compte au plus %3 millions</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>Impossible d’enregistrer «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>the canvas cannot be read</source>
        <translation>la toile ne peut pas être lue</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>«&#x202f;%1&#x202f;» contient des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>Les enregistrer&#x202f;?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>Export Brush</source>
        <translation>Exporter la brosse</translation>
    </message>
    <message>
        <source>Brush (*.xbf)</source>
        <translation>Brosse (*.xbf)</translation>
    </message>
    <message>
        <source>Import Brushes</source>
        <translation>Importer des brosses</translation>
    </message>
    <message>
        <source>Brushes (*.xbf %1)</source>
        <translation>Brosses (*.xbf %1)</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#x202f;:</translation>
    </message>
    <message>
        <source>There is nothing to paint with; the log says what is missing.</source>
        <translation>Il n’y a rien avec quoi peindre&#x202f;; le journal indique ce qui manque.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>it does not begin with &quot;GIMP Palette&quot;</source>
        <translation>il ne commence pas par «&#x202f;GIMP Palette&#x202f;»</translation>
    </message>
    <message>
        <source>line %1 is no colour of three numbers up to 255</source>
        <translation>la ligne %1 n’est pas une couleur de trois nombres jusqu’à 255</translation>
    </message>
    <message>
        <source>it has more than %1 colours</source>
        <translation>il contient plus de %1 couleurs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had here.</source>
        <translation>Une toile de %1 × %2 pixels est impossible ici.</translation>
    </message>
    <message>
        <source>no picture is written as %1; the kinds are %2</source>
        <translation>aucune image n’est écrite en %1&#x202f;; les types sont %2</translation>
    </message>
    <message>
        <source>This kind of file has no layers.</source>
        <translation>Ce type de fichier n’a pas de calques.</translation>
    </message>
    <message>
        <source>This kind of file cannot be seen through.</source>
        <translation>Ce type de fichier n’a pas de transparence.</translation>
    </message>
    <message>
        <source>It shows all of them together. They stay here as long as this picture is open, and an OpenRaster file keeps them.</source>
        <translation>Il les montre tous ensemble. Ils restent ici tant que cette image est ouverte, et un fichier OpenRaster les conserve.</translation>
    </message>
    <message>
        <source>What is transparent is filled with the paper&apos;s colour. A PNG file keeps it.</source>
        <translation>Ce qui est transparent est rempli de la couleur du papier. Un fichier PNG garde la transparence.</translation>
    </message>
    <message>
        <source>Save Flattened</source>
        <translation>Enregistrer aplati</translation>
    </message>
    <message>
        <source>Save Filled</source>
        <translation>Enregistrer rempli</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>Enregistrer en PNG…</translation>
    </message>
    <message>
        <source>Save as OpenRaster…</source>
        <translation>Enregistrer en OpenRaster…</translation>
    </message>
    <message>
        <source>OpenRaster, with layers (*.ora)</source>
        <translation>OpenRaster, avec calques (*.ora)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>Image JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP image, lossless (*.webp)</source>
        <translation>Image WebP, sans perte (*.webp)</translation>
    </message>
    <message>
        <source>Other images (%1)</source>
        <translation>Autres images (%1)</translation>
    </message>
    <message>
        <source>Import Palettes</source>
        <translation>Importer des palettes</translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation>Palettes GIMP (*.gpl)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Exporter la palette</translation>
    </message>
    <message>
        <source>GIMP palette (*.gpl)</source>
        <translation>Palette GIMP (*.gpl)</translation>
    </message>
    <message>
        <source>Export Recording</source>
        <translation>Exporter l’enregistrement</translation>
    </message>
    <message>
        <source>Recording (*.jsonl)</source>
        <translation>Enregistrement (*.jsonl)</translation>
    </message>
    <message>
        <source>Export Time-Lapse</source>
        <translation>Exporter l’accéléré</translation>
    </message>
    <message>
        <source>Animated WebP (*.webp)</source>
        <translation>WebP animé (*.webp)</translation>
    </message>
    <message>
        <source>Folder of pictures (*)</source>
        <translation>Dossier d’images (*)</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>Copie %2 de %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Autosave</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushBar</name>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Brush size and opacity</source>
        <translation>Taille et opacité de la brosse</translation>
    </message>
    <message>
        <source>Size of the brush, by every drag, wheel or arrow key the same part of it</source>
        <translation>Taille de la brosse&#x202f;; glissement, molette et flèches la changent toujours dans la même proportion</translation>
    </message>
    <message>
        <source>Opacity of each stroke</source>
        <translation>Opacité de chaque trait</translation>
    </message>
    <message>
        <source>How much colours may differ that a fill takes for one</source>
        <translation>Écart permis entre les couleurs que le remplissage tient pour une seule</translation>
    </message>
    <message>
        <source>A double click, F2 or Enter types the number</source>
        <translation>Un double-clic, F2 ou Enter permet de saisir le nombre</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushPanel</name>
    <message>
        <source>Search settings</source>
        <translation>Chercher un réglage</translation>
    </message>
    <message>
        <source>Reset to preset</source>
        <translation>Rétablir préréglage</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Gives every brush setting what the chosen brush has</source>
        <translation>Donne à chaque réglage de brosse la valeur de la brosse choisie</translation>
    </message>
    <message>
        <source>Gives every brush setting its default</source>
        <translation>Donne à chaque réglage de brosse sa valeur par défaut</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>Échanger les couleurs (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I)</source>
        <translation>Prélever une couleur sur la toile (I)</translation>
    </message>
    <message>
        <source>No setting is called so.</source>
        <translation>Aucun réglage de ce nom.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushRow</name>
    <message>
        <source>Reset %1</source>
        <translation>Réinitialiser %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasSizeDialog</name>
    <message>
        <source>Canvas Size</source>
        <translation>Taille de la toile</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>&amp;Unité</translation>
    </message>
    <message>
        <source>What is there stays</source>
        <translation>Le contenu reste</translation>
    </message>
    <message>
        <source>At the top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>At the top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>At the left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>At the right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>At the bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>At the bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>%1 × %2 pixels; what lies beyond is cut off.</source>
        <translation>%1 × %2 pixels&#x202f;; ce qui dépasse est coupé.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels.</source>
        <translation>%1 × %2 pixels.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasStatus</name>
    <message>
        <source>Shapes</source>
        <translation>Formes</translation>
    </message>
    <message>
        <source>What paints this picture</source>
        <translation>Ce qui peint cette image</translation>
    </message>
    <message>
        <source>Pressure %1 %</source>
        <translation>Pression %1&#x202f;%</translation>
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
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Mirrored, %1</source>
        <translation>Miroir, %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasViewport</name>
    <message>
        <source>Canvas</source>
        <translation>Toile</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ChoiceEditor</name>
    <message>
        <source>Other (%1)</source>
        <translation>Autre (%1)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorPanel</name>
    <message>
        <source>Foreground colour</source>
        <translation>Couleur de premier plan</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Couleurs récentes</translation>
    </message>
    <message>
        <source>%1: what is chosen below</source>
        <translation>%1&#x202f;: à choisir ci-dessous</translation>
    </message>
    <message>
        <source>Colour as red, green and blue</source>
        <translation>Couleur en rouge, vert et bleu</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal</source>
        <translation>#rrggbb, #rgb ou un nom comme teal</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>Échanger les couleurs (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I, or hold Ctrl)</source>
        <translation>Prélever une couleur sur la toile (I, ou maintenir Ctrl)</translation>
    </message>
    <message>
        <source>More to do with colours</source>
        <translation>Autres actions sur les couleurs</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Roue</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>&amp;Eyedropper Takes</source>
        <translation>La &amp;pipette prélève</translation>
    </message>
    <message>
        <source>One Pixel</source>
        <translation>Un pixel</translation>
    </message>
    <message>
        <source>Average of %1 × %1 Pixels</source>
        <translation>Moyenne de %1 × %1 pixels</translation>
    </message>
    <message>
        <source>&amp;Forget Recent Colours</source>
        <translation>&amp;Oublier les couleurs récentes</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorSliders</name>
    <message>
        <source>Lightness</source>
        <translation>Clarté</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#x202f;%</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>Chroma</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorWheel</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Hue: drag, or the arrow keys</source>
        <translation>Teinte&#x202f;: glisser, ou flèches</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 degrés</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ControlEditor</name>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>Inclin.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Document</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>Il n’y a aucune image à enregistrer.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ImagesEditor</name>
    <message>
        <source>Load…</source>
        <translation>Charger…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: at most %2 images are used.</source>
        <translation>«&#x202f;%1&#x202f;» est laissée de côté&#x202f;: %2 images au plus sont utilisées.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LayerPanel</name>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Lock alpha</source>
        <translation>Verrouiller alpha</translation>
    </message>
    <message>
        <source>Strokes change its colours alone</source>
        <translation>Les traits ne changent que ses couleurs</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>Blend mode of the layer</source>
        <translation>Mode de fusion du calque</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>Opacité du calque</translation>
    </message>
    <message>
        <source>Add a layer</source>
        <translation>Ajouter un calque</translation>
    </message>
    <message>
        <source>Duplicate the layer</source>
        <translation>Dupliquer le calque</translation>
    </message>
    <message>
        <source>Move the layer up</source>
        <translation>Monter le calque</translation>
    </message>
    <message>
        <source>Move the layer down</source>
        <translation>Descendre le calque</translation>
    </message>
    <message>
        <source>Merge with the layer below</source>
        <translation>Fusionner avec le calque inférieur</translation>
    </message>
    <message>
        <source>Delete the layer</source>
        <translation>Supprimer le calque</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Ticked layers are seen; a double click names one</source>
        <translation>Les calques cochés sont visibles&#x202f;; un double-clic permet de les nommer</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Calque %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LeftPicturesDialog</name>
    <message>
        <source>Recover Pictures</source>
        <translation>Récupérer des images</translation>
    </message>
    <message>
        <source>Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo steps where they are left.</source>
        <translation>Dabpainter s’est arrêté de façon inattendue pendant que ces images étaient peintes. Chacune reprend là où elle en était, avec ses étapes d’annulation si elles subsistent.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Il n’y en a aucune.</translation>
    </message>
    <message>
        <source>without undo steps</source>
        <translation>sans étape d’annulation</translation>
    </message>
    <message>
        <source>one undo step</source>
        <translation>une étape d’annulation</translation>
    </message>
    <message>
        <source>%1 undo steps</source>
        <translation>%1 étapes d’annulation</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3, %4 on the disk</source>
        <translation>%1 × %2 pixels, %3, %4 sur le disque</translation>
    </message>
    <message>
        <source>Delete this picture for good?</source>
        <translation>Supprimer définitivement cette image&#x202f;?</translation>
    </message>
    <message>
        <source>It cannot be deleted: it is in use, or the disk refuses.</source>
        <translation>Suppression impossible&#x202f;: elle est utilisée, ou le disque refuse.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::MainWindow</name>
    <message>
        <source>The graphics card cannot paint this picture</source>
        <translation>La carte graphique ne peut pas peindre cette image</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had from this graphics driver.</source>
        <translation>Ce pilote graphique ne peut pas fournir une toile de %1 × %2 pixels.</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here, its undo steps are not</source>
        <translation>La carte graphique a été perdue un instant&#x202f;; l’image est là, mais pas ses étapes d’annulation</translation>
    </message>
    <message>
        <source>The picture cannot be recovered: %1.</source>
        <translation>Impossible de récupérer l’image&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Place Image</source>
        <translation>Placer une image</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouveau…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Place Image…</source>
        <translation>&amp;Placer une image…</translation>
    </message>
    <message>
        <source>&amp;Recover Pictures…</source>
        <translation>&amp;Récupérer des images…</translation>
    </message>
    <message>
        <source>No run has left a picture</source>
        <translation>Il n’y a aucune image à récupérer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undo &amp;Steps…</source>
        <translation>É&amp;tapes d’annulation…</translation>
    </message>
    <message>
        <source>&amp;Keys…</source>
        <translation>Ra&amp;ccourcis…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Toile</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Paint with</source>
        <translation>&amp;Peindre avec</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatique</translation>
    </message>
    <message>
        <source>&amp;Graphics Card</source>
        <translation>&amp;Carte graphique</translation>
    </message>
    <message>
        <source>&amp;Processor</source>
        <translation>&amp;Processeur</translation>
    </message>
    <message>
        <source>Holds for pictures that are made or opened from now on</source>
        <translation>Vaut pour les images créées ou ouvertes à partir de maintenant</translation>
    </message>
    <message>
        <source>&amp;Fingers</source>
        <translation>&amp;Doigts</translation>
    </message>
    <message>
        <source>Move the Canvas Once a &amp;Pen Was Seen</source>
        <translation>Déplacer la toile dès qu’un &amp;stylet est détecté</translation>
    </message>
    <message>
        <source>Always &amp;Move the Canvas</source>
        <translation>Toujours &amp;déplacer la toile</translation>
    </message>
    <message>
        <source>Al&amp;ways Paint</source>
        <translation>Toujours &amp;peindre</translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation>&amp;Brosse</translation>
    </message>
    <message>
        <source>Size by Moving the Pointer</source>
        <translation>Taille en déplaçant le pointeur</translation>
    </message>
    <message>
        <source>&amp;Previous Brush</source>
        <translation>Brosse &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>Plus pet&amp;ite</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>Plus &amp;grande</translation>
    </message>
    <message>
        <source>So&amp;fter</source>
        <translation>Plus do&amp;uce</translation>
    </message>
    <message>
        <source>&amp;Harder</source>
        <translation>Plus &amp;dure</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>&amp;Opacité</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation>É&amp;changer les couleurs</translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation>Couleurs par dé&amp;faut</translation>
    </message>
    <message>
        <source>&amp;Eyedropper</source>
        <translation>Pipe&amp;tte</translation>
    </message>
    <message>
        <source>Reco&amp;gnise Shapes</source>
        <translation>&amp;Reconnaître les formes</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>Tout réinitiali&amp;ser</translation>
    </message>
    <message>
        <source>&amp;Reset to Preset</source>
        <translation>Réinitiali&amp;ser au préréglage</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>&amp;Whole Canvas</source>
        <translation>T&amp;oute la toile</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Pl&amp;ein écran</translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation>Brosses</translation>
    </message>
    <message>
        <source>Brush settings</source>
        <translation>Réglages de brosse</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>The disk takes no undo steps: save, as a crash would lose this picture</source>
        <translation>Le disque n’accepte plus d’étapes d’annulation&#x202f;: enregistrez, car un plantage ferait perdre cette image</translation>
    </message>
    <message>
        <source>No shape was recognised</source>
        <translation>Aucune forme reconnue</translation>
    </message>
    <message>
        <source>Undo Steps</source>
        <translation>Étapes d’annulation</translation>
    </message>
    <message>
        <source>Steps that can be undone:</source>
        <translation>Étapes annulables&#x202f;:</translation>
    </message>
    <message>
        <source>Strokes become shapes; what is none is taken away</source>
        <translation>Les traits deviennent des formes&#x202f;; ce qui n’en est pas une est retiré</translation>
    </message>
    <message>
        <source>Strokes stay as they are drawn</source>
        <translation>Les traits restent tels que dessinés</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Canvas &amp;Size…</source>
        <translation>&amp;Taille de la toile…</translation>
    </message>
    <message>
        <source>Crop &amp;to Drawn</source>
        <translation>Re&amp;cadrer sur le dessin</translation>
    </message>
    <message>
        <source>Nothing is drawn</source>
        <translation>Rien n’est dessiné</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>Tourner à &amp;gauche</translation>
    </message>
    <message>
        <source>Turn &amp;Right</source>
        <translation>Tourner à &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>Redre&amp;sser</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>&amp;Miroir</translation>
    </message>
    <message>
        <source>Turn by Dragging</source>
        <translation>Tourner en glissant</translation>
    </message>
    <message>
        <source>Pen Pr&amp;essure…</source>
        <translation>Pr&amp;ession du stylet…</translation>
    </message>
    <message>
        <source>Steady hand</source>
        <translation>Main sûre</translation>
    </message>
    <message>
        <source>S&amp;ymmetry</source>
        <translation>S&amp;ymétrie</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucune</translation>
    </message>
    <message>
        <source>&amp;Left and Right</source>
        <translation>&amp;Gauche et droite</translation>
    </message>
    <message>
        <source>&amp;Above and Below</source>
        <translation>&amp;Haut et bas</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>&amp;Les deux</translation>
    </message>
    <message>
        <source>&amp;Rays</source>
        <translation>&amp;Rayons</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>Symétrie</translation>
    </message>
    <message>
        <source>Draws copies of every stroke, mirrored or turned</source>
        <translation>Dessine des copies de chaque trait, en miroir ou tournées</translation>
    </message>
    <message>
        <source>N&amp;umber of Rays…</source>
        <translation>N&amp;ombre de rayons…</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayons</translation>
    </message>
    <message>
        <source>Rays of the symmetry:</source>
        <translation>Rayons de la symétrie&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Mirrored Rays</source>
        <translation>Rayons en &amp;miroir</translation>
    </message>
    <message>
        <source>&amp;Centre Here</source>
        <translation>&amp;Centre ici</translation>
    </message>
    <message>
        <source>Centre in the M&amp;iddle</source>
        <translation>Centre au m&amp;ilieu</translation>
    </message>
    <message>
        <source>&amp;Drag the Centre</source>
        <translation>&amp;Déplacer le centre</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>Fichiers récen&amp;ts</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>T&amp;hème</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Comme le &amp;système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Painter&apos;s &amp;Guide</source>
        <translation>&amp;Guide du peintre</translation>
    </message>
    <message>
        <source>&amp;About Dabpainter</source>
        <translation>À &amp;propos de Dabpainter</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>En&amp;registrement</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Enregistrer la séance</translation>
    </message>
    <message>
        <source>What is painted from here on is kept, to be exported</source>
        <translation>Ce qui est peint à partir d’ici est gardé pour l’export</translation>
    </message>
    <message>
        <source>&amp;Export Recording…</source>
        <translation>E&amp;xporter l’enregistrement…</translation>
    </message>
    <message>
        <source>Export &amp;Time-Lapse…</source>
        <translation>Exporter l’&amp;accéléré…</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exporté</translation>
    </message>
    <message>
        <source>Painting the time-lapse…</source>
        <translation>L’accéléré est en train d’être peint…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Enter or a double click puts it down, Escape gives it up</source>
        <translation>Enter ou un double-clic la pose, Escape l’abandonne</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Sélection</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rectangle</translation>
    </message>
    <message>
        <source>&amp;Lasso</source>
        <translation>&amp;Lasso</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cou&amp;per</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copy All &amp;Layers</source>
        <translation>Copier tous les ca&amp;lques</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Coll&amp;er</translation>
    </message>
    <message>
        <source>There is no picture to paste</source>
        <translation>Il n’y a aucune image à coller</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>E&amp;raser</source>
        <translation>&amp;Gomme</translation>
    </message>
    <message>
        <source>&amp;Smudge</source>
        <translation>Ét&amp;alement</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>Re&amp;mplissage</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Strokes become the line, polygon, ellipse, arc or arrow they are meant as</source>
        <translation>Les traits deviennent la ligne, le polygone, l’ellipse, l’arc ou la flèche voulus</translation>
    </message>
    <message>
        <source>This layer is hidden: nothing would be seen of it</source>
        <translation>Ce calque est masqué&#x202f;: on n’en verrait rien</translation>
    </message>
    <message>
        <source>There is not enough memory to fill this</source>
        <translation>Mémoire insuffisante pour ce remplissage</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>Strokes keep to what is selected; Escape selects nothing</source>
        <translation>Les traits restent dans la sélection ; Escape la supprime</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here as the last step left it</source>
        <translation>La carte graphique a été perdue un instant&#x202f;; l’image est là, telle que la dernière étape l’a laissée</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::NewCanvasDialog</name>
    <message>
        <source>New Canvas</source>
        <translation>Nouvelle toile</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Fond</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Takes about %1 of memory.</source>
        <translation>Occupe environ %1 de mémoire.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PaletteLibrary</name>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Impossible de créer le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>Impossible de supprimer «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable palette: %2.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un fichier de palette utilisable&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PalettePage</name>
    <message>
        <source>Colours of the palette</source>
        <translation>Couleurs de la palette</translation>
    </message>
    <message>
        <source>No colours yet: + adds the present one.</source>
        <translation>Pas encore de couleur&#x202f;: + ajoute l’actuelle.</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Add the present colour to the palette</source>
        <translation>Ajouter la couleur actuelle à la palette</translation>
    </message>
    <message>
        <source>More to do with palettes</source>
        <translation>Autres actions sur les palettes</translation>
    </message>
    <message>
        <source>&amp;New Palette…</source>
        <translation>&amp;Nouvelle palette…</translation>
    </message>
    <message>
        <source>&amp;Rename Palette…</source>
        <translation>&amp;Renommer la palette…</translation>
    </message>
    <message>
        <source>&amp;Delete Palette…</source>
        <translation>&amp;Supprimer la palette…</translation>
    </message>
    <message>
        <source>&amp;Import Palettes…</source>
        <translation>&amp;Importer des palettes…</translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation>&amp;Exporter la palette…</translation>
    </message>
    <message>
        <source>Re&amp;name Colour…</source>
        <translation>Reno&amp;mmer la couleur…</translation>
    </message>
    <message>
        <source>&amp;Remove Colour</source>
        <translation>Re&amp;tirer la couleur</translation>
    </message>
    <message>
        <source>Rename Colour</source>
        <translation>Renommer la couleur</translation>
    </message>
    <message>
        <source>New Palette</source>
        <translation>Nouvelle palette</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Renommer la palette</translation>
    </message>
    <message>
        <source>Delete the palette &quot;%1&quot;?</source>
        <translation>Supprimer la palette «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PictureFile</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>Impossible d’ouvrir «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>it is not an image of a known kind</source>
        <translation>ce n’est pas une image d’un type connu</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>it is damaged (%1)</source>
        <translation>il est endommagé (%1)</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetBrowser</name>
    <message>
        <source>Search brushes</source>
        <translation>Chercher une brosse</translation>
    </message>
    <message>
        <source>Save the present settings as a new brush</source>
        <translation>Enregistrer les réglages actuels comme nouvelle brosse</translation>
    </message>
    <message>
        <source>More to do with the chosen brush</source>
        <translation>Autres actions sur la brosse choisie</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>%1 – modified</source>
        <translation>%1 – modifiée</translation>
    </message>
    <message>
        <source>There are no brushes yet: import some by the menu above, or save the present settings as one.</source>
        <translation>Pas encore de brosse&#x202f;: importez-en par le menu ci-dessus, ou enregistrez les réglages actuels comme brosse.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetChoice</name>
    <message>
        <source>Save as New Brush</source>
        <translation>Enregistrer comme nouvelle brosse</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Brosse</translation>
    </message>
    <message>
        <source>Replace the brush &quot;%1&quot;?</source>
        <translation>Remplacer la brosse «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>It takes the present settings, and what it was is lost.</source>
        <translation>Elle prendra les réglages actuels&#x202f;; les anciens seront perdus.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Rename Brush</source>
        <translation>Renommer la brosse</translation>
    </message>
    <message>
        <source>Delete the brush &quot;%1&quot;?</source>
        <translation>Supprimer la brosse «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Delete the file &quot;%1&quot; with its %2 brushes?</source>
        <translation>Supprimer le fichier «&#x202f;%1&#x202f;» et ses %2 brosses&#x202f;?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Of &quot;%1&quot; could not be carried over:
%2</source>
        <translation>De «&#x202f;%1&#x202f;», n’ont pas pu être repris&#x202f;:
%2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetDelegate</name>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>no preset</source>
        <translation>sans préréglage</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetFilter</name>
    <message>
        <source>No brush is called &quot;%1&quot;: clear the search.</source>
        <translation>Aucun pinceau ne s’appelle « %1 » : effacez la recherche.</translation>
    </message>
    <message>
        <source>None of these is called &quot;%1&quot;: clear the search, or show all brushes.</source>
        <translation>Aucun d’eux ne s’appelle « %1 » : effacez la recherche ou affichez tous les pinceaux.</translation>
    </message>
    <message>
        <source>No favourites yet: a click on the star of a brush makes it one, or * in the list.</source>
        <translation>Pas encore de favoris : cliquez sur l’étoile d’un pinceau, ou tapez * dans la liste.</translation>
    </message>
    <message>
        <source>No brush is of this kind: show all brushes.</source>
        <translation>Aucun pinceau de ce genre : affichez tous les pinceaux.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetKinds</name>
    <message>
        <source>Kind of brushes</source>
        <translation>Genre de pinceaux</translation>
    </message>
    <message>
        <source>Which brushes are listed</source>
        <translation>Quels pinceaux sont listés</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetLibrary</name>
    <message>
        <source>it does not hold this brush</source>
        <translation>il ne contient pas cette brosse</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Impossible de créer le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>Impossible de renommer «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>Impossible de supprimer «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>there is no memory for it</source>
        <translation>la mémoire n’y suffit pas</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it holds no brush</source>
        <translation>il ne contient aucune brosse</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable brush file: %2.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un fichier de brosse utilisable&#x202f;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListModel</name>
    <message>
        <source>Every setting at its default</source>
        <translation>Tous les réglages à leur valeur par défaut</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>Impossible d’utiliser «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Par %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListView</name>
    <message>
        <source>Brushes</source>
        <translation>Brosses</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetMenu</name>
    <message>
        <source>Save as &amp;New Brush…</source>
        <translation>Enregistrer comme &amp;nouvelle brosse…</translation>
    </message>
    <message>
        <source>&amp;Overwrite with Present Settings…</source>
        <translation>Remplacer par les réglages &amp;actuels…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Favori</translation>
    </message>
    <message>
        <source>&amp;Import Brushes…</source>
        <translation>I&amp;mporter des brosses…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>Afficher le &amp;dossier</translation>
    </message>
    <message>
        <source>Presets Set the &amp;Colour</source>
        <translation>Les préréglages fixent la &amp;couleur</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureCurveEditor</name>
    <message>
        <source>Pressure curve</source>
        <translation>Courbe de pression</translation>
    </message>
    <message>
        <source>Arrows move a point, Ctrl with left and right chooses one, Insert adds one, Delete takes it away</source>
        <translation>Les flèches déplacent un point, Ctrl avec gauche et droite en choisit un, Insert en ajoute un, Delete le retire</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureDialog</name>
    <message>
        <source>Pen Pressure</source>
        <translation>Pression du stylet</translation>
    </message>
    <message>
        <source>Clear the &amp;Sheet</source>
        <translation>&amp;Effacer la feuille</translation>
    </message>
    <message>
        <source>Draw here to try it</source>
        <translation>Dessinez ici pour essayer</translation>
    </message>
    <message>
        <source>So&amp;ft</source>
        <translation>Do&amp;uce</translation>
    </message>
    <message>
        <source>&amp;Linear</source>
        <translation>&amp;Linéaire</translation>
    </message>
    <message>
        <source>Fir&amp;m</source>
        <translation>Fer&amp;me</translation>
    </message>
    <message>
        <source>The pen&apos;s %1 % count as %2 %</source>
        <translation>%1&#x202f;% du stylet comptent pour %2&#x202f;%</translation>
    </message>
    <message>
        <source>No pen presses</source>
        <translation>Aucun stylet n’appuie</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureTester</name>
    <message>
        <source>Sheet to try the pressure on</source>
        <translation>Feuille d’essai de la pression</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterReader</name>
    <message>
        <source>its layers have too many pixels together</source>
        <translation>ses calques ont trop de pixels au total</translation>
    </message>
    <message>
        <source>it is no OpenRaster picture, or damaged</source>
        <translation>ce n’est pas une image OpenRaster, ou elle est endommagée</translation>
    </message>
    <message>
        <source>the picture of its layer &quot;%1&quot; is missing or damaged</source>
        <translation>l’image de son calque «&#x202f;%1&#x202f;» manque ou est endommagée</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>ce dabpainter a été compilé sans QuaZip, nécessaire à OpenRaster</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>l’archive est endommagée</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterWriter</name>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>ce dabpainter a été compilé sans QuaZip, nécessaire à OpenRaster</translation>
    </message>
    <message>
        <source>there is no memory for the file</source>
        <translation>la mémoire ne suffit pas au fichier</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecentFiles</name>
    <message>
        <source>No picture yet</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecordingSign</name>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>What is painted is recorded: stop it, or export it</source>
        <translation>Ce qui est peint est enregistré : arrêter ou exporter</translation>
    </message>
    <message>
        <source>A recording runs</source>
        <translation>Un enregistrement est en cours</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SampleStroke</name>
    <message>
        <source>A stroke with the present brush</source>
        <translation>Un trait avec la brosse actuelle</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SelectionEditor</name>
    <message>
        <source>The layer is hidden</source>
        <translation>Le calque est masqué</translation>
    </message>
    <message>
        <source>Nothing of this layer is selected</source>
        <translation>Rien de ce calque n’est sélectionné</translation>
    </message>
    <message>
        <source>The canvas takes no picture now; the log says why.</source>
        <translation>La toile n’accepte pas d’image pour l’instant&#x202f;; le journal indique pourquoi.</translation>
    </message>
    <message>
        <source>The layer&apos;s alpha is locked</source>
        <translation>L’alpha du calque est verrouillé</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SessionRecorder</name>
    <message>
        <source>The recording cannot be written: %1.</source>
        <translation>L’enregistrement ne peut pas être écrit : %1.</translation>
    </message>
    <message>
        <source>The canvas cannot be recorded; the log says why.</source>
        <translation>La toile ne peut pas être enregistrée ; le journal dit pourquoi.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The recording could not be written down: %1.</source>
        <translation>L’enregistrement n’a pas pu être conservé : %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>Impossible d’enregistrer «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShadeTriangle</name>
    <message>
        <source>Lightness and chroma</source>
        <translation>Clarté et chroma</translation>
    </message>
    <message>
        <source>Lightness and chroma: drag, or the arrow keys</source>
        <translation>Clarté et chroma&#x202f;: glisser, ou flèches</translation>
    </message>
    <message>
        <source>Lightness %1 %, chroma %2</source>
        <translation>Clarté %1&#x202f;%, chroma %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShortcutsDialog</name>
    <message>
        <source>&amp;Assign</source>
        <translation>&amp;Attribuer</translation>
    </message>
    <message>
        <source>&amp;No Key</source>
        <translation>A&amp;ucun raccourci</translation>
    </message>
    <message>
        <source>&amp;Usual Key</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Chercher commandes et raccourcis</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Commandes et leurs raccourcis</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Nouveau raccourci</translation>
    </message>
    <message>
        <source>All &amp;Usual</source>
        <translation>&amp;Tout par défaut</translation>
    </message>
    <message>
        <source>&amp;Take It</source>
        <translation>Attribuer &amp;quand même</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;, which would have none then.</source>
        <translation>%1 est le raccourci de «&#x202f;%2&#x202f;», qui n’en aurait alors plus.</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StabiliserControl</name>
    <message>
        <source>Unsteadied</source>
        <translation>Sans</translation>
    </message>
    <message>
        <source>Averaged</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Pulled string</source>
        <translation>Ficelle tirée</translation>
    </message>
    <message>
        <source>What steadies the hand</source>
        <translation>Ce qui stabilise la main</translation>
    </message>
    <message>
        <source>What steadies the hand; each brush remembers its own</source>
        <translation>Ce qui stabilise la main&#x202f;; chaque brosse retient le sien</translation>
    </message>
    <message>
        <source>How much the hand is steadied</source>
        <translation>Force de stabilisation de la main</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Jusqu’au bout</translation>
    </message>
    <message>
        <source>At its end a line goes on to where the pointer is</source>
        <translation>À la fin, le trait continue jusqu’au pointeur</translation>
    </message>
    <message>
        <source>The string is %1 points long</source>
        <translation>La ficelle mesure %1 points</translation>
    </message>
    <message>
        <source>Follows within %1 s</source>
        <translation>Suit en %1&#xa0;s</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StackReader</name>
    <message>
        <source>Some layers have blend modes that are not known here; they are shown as normal.</source>
        <translation>Certains calques ont des modes de fusion inconnus ici&#x202f;; ils sont affichés en normal.</translation>
    </message>
    <message>
        <source>a layer lies too far from the picture</source>
        <translation>un calque est trop loin de l’image</translation>
    </message>
    <message>
        <source>Groups of layers have come apart, and may look another way.</source>
        <translation>Des groupes de calques ont été défaits et peuvent avoir un autre aspect.</translation>
    </message>
    <message>
        <source>its groups lie too deep in each other</source>
        <translation>ses groupes sont trop imbriqués</translation>
    </message>
    <message>
        <source>the picture of a layer lies outside of the archive</source>
        <translation>l’image d’un calque est hors de l’archive</translation>
    </message>
    <message>
        <source>it has more than %1 layers</source>
        <translation>il a plus de %1 calques</translation>
    </message>
    <message>
        <source>Some of its contents are no layers of pixels, and are left out.</source>
        <translation>Une partie du contenu n’est pas en calques de pixels et a été omise.</translation>
    </message>
    <message>
        <source>its list of layers is damaged (%1)</source>
        <translation>sa liste de calques est endommagée (%1)</translation>
    </message>
    <message>
        <source>it has no layers</source>
        <translation>il n’a pas de calques</translation>
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
        <translation>Il n’y a pas assez de mémoire pour l’accéléré.</translation>
    </message>
    <message>
        <source>The recording</source>
        <translation>L’enregistrement</translation>
    </message>
</context>
</TS>
