<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Dabpainter</source>
        <translation>Dabpainter について</translation>
    </message>
    <message>
        <source>Dabpainter %1 paints with natural-media brushes. Whoever reports a fault may add this:</source>
        <translation>Dabpainter %1 は、自然画材のブラシで描くソフトです。不具合を報告するときは、次の内容を添えてください:</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Painter&apos;s Guide</source>
        <translation>ペインターガイド</translation>
    </message>
</context>
<context>
    <name>Tables</name>
    <message>
        <source>A ball that skips a little and lays down more ink where it is pressed.</source>
        <translation>ところどころかすれ、強く押すとインクが濃く出るボールペン。</translation>
    </message>
    <message>
        <source>A blunt greasy crayon that skips the paper&apos;s pits.</source>
        <translation>紙のくぼみを塗り残す、先の丸い油性クレヨン。</translation>
    </message>
    <message>
        <source>A broad nib held at 45 degrees: thick and thin come of the direction.</source>
        <translation>45度に構えた幅広のペン先。線の向きで太さが変わります。</translation>
    </message>
    <message>
        <source>A drawing pen of one width, whatever the hand does.</source>
        <translation>どう描いても線幅が変わらない製図用のペン。</translation>
    </message>
    <message>
        <source>A fibre pen whose edge frays a little on the paper.</source>
        <translation>紙の上で縁がわずかに毛羽立つ繊維芯のペン。</translation>
    </message>
    <message>
        <source>A fingertip that drags wet paint along.</source>
        <translation>乾いていない絵の具を引きずる指先。</translation>
    </message>
    <message>
        <source>A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.</source>
        <translation>縁のはっきりした平筆。色の面を作り、触れた色を筋状に引きずります。</translation>
    </message>
    <message>
        <source>A flat wash brush with straight ends and a dark rim along both sides.</source>
        <translation>線の端がまっすぐな水彩の平筆。両側に濃い縁が残ります。</translation>
    </message>
    <message>
        <source>A flexible steel nib that swells under pressure and runs out in points.</source>
        <translation>筆圧で太くなり、先が細く抜ける、しなやかな鋼のペン先。</translation>
    </message>
    <message>
        <source>A full pointed brush of ink, from a hair to a broad stroke.</source>
        <translation>たっぷり墨を含んだ筆。毛のような細線から太い線まで描けます。</translation>
    </message>
    <message>
        <source>A hard square crayon, broad across its edge and thin along it, on laid paper.</source>
        <translation>硬い角形のコンテ。角の稜線を横に引くと太く、稜線に沿うと細くなります。簀の目紙に。</translation>
    </message>
    <message>
        <source>A hard stick of chalk whose face breaks up over the tooth.</source>
        <translation>紙の凹凸で描線が砕ける、硬い棒状のチョーク。</translation>
    </message>
    <message>
        <source>A jet with too much air, in drops that stay apart.</source>
        <translation>空気が多く、粒がばらけたままになる吹き付け。</translation>
    </message>
    <message>
        <source>A natural sponge dabbed about, with pores of all sizes.</source>
        <translation>ぽんぽんと置いて使う天然スポンジ。大小さまざまな穴があります。</translation>
    </message>
    <message>
        <source>A pen for the mouse: slow lines are wide and quick ones thin.</source>
        <translation>マウス向けのペン。ゆっくり引くと太く、速く引くと細くなります。</translation>
    </message>
    <message>
        <source>A pointed round of sable: transparent colour that dries with a dark rim.</source>
        <translation>穂先の尖った貂毛の丸筆。透明な色で、乾くと縁が濃くなります。</translation>
    </message>
    <message>
        <source>A rounded brush for soft-ended strokes that pick up their neighbours&apos; colour.</source>
        <translation>端が柔らかく終わる丸みのある平筆。隣の色を拾います。</translation>
    </message>
    <message>
        <source>A slanted marker: broad one way, thin the other, transparent.</source>
        <translation>斜めに切られた透明マーカー。向きによって太くも細くもなります。</translation>
    </message>
    <message>
        <source>A soft dry brush that blurs the border between colours.</source>
        <translation>色の境目をぼかす、柔らかい乾いた筆。</translation>
    </message>
    <message>
        <source>A soft jet of colour that builds up with every pass.</source>
        <translation>重ねるたびに濃くなる柔らかな吹き付け。</translation>
    </message>
    <message>
        <source>A soft pencil; tilt it to shade with the side of its lead.</source>
        <translation>柔らかい鉛筆。傾けると芯の腹で陰影を付けられます。</translation>
    </message>
    <message>
        <source>A steel blade that lays a film of paint and scrapes the colours below along.</source>
        <translation>絵の具を薄く伸ばし、下の色も一緒に削り取る鋼のナイフ。</translation>
    </message>
    <message>
        <source>A stick of charcoal: dusty when light, black where it is pressed.</source>
        <translation>木炭。軽く当てると粉っぽく、強く押すと黒くなります。</translation>
    </message>
    <message>
        <source>A stiff brush with little paint, whose hairs each leave a scratch.</source>
        <translation>絵の具の少ない硬い筆。毛の一本一本が引っかき跡を残します。</translation>
    </message>
    <message>
        <source>A thin lead that is always sharp, for lines of one width.</source>
        <translation>いつも尖った細い芯。線幅が一定です。</translation>
    </message>
    <message>
        <source>A transparent marker that darkens where strokes cross.</source>
        <translation>線が交わったところが濃くなる透明マーカー。</translation>
    </message>
    <message>
        <source>A well sharpened HB pencil on drawing paper.</source>
        <translation>画用紙に描く、よく削ったHBの鉛筆。</translation>
    </message>
    <message>
        <source>A wide and faint mist for shadows and glows.</source>
        <translation>影や光の表現に使う、広く淡い霧。</translation>
    </message>
    <message>
        <source>Acrylic</source>
        <translation>アクリル</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>エアブラシ</translation>
    </message>
    <message>
        <source>All around</source>
        <translation>全方向</translation>
    </message>
    <message>
        <source>Amount of own colour on a smudge brush; 0 only moves what is there.</source>
        <translation>色混ぜブラシ自身の絵の具の量。0 では、すでにある色を動かすだけです。</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Angle influences</source>
        <translation>角度の影響元</translation>
    </message>
    <message>
        <source>Angle jitter</source>
        <translation>角度ジッター</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>At least three pixels</source>
        <translation>最小 3 ピクセル</translation>
    </message>
    <message>
        <source>Autumn Leaves</source>
        <translation>秋の落ち葉</translation>
    </message>
    <message>
        <source>Ballpoint</source>
        <translation>ボールペン</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>背面</translation>
    </message>
    <message>
        <source>Bleeding Wash</source>
        <translation>にじみウォッシュ</translation>
    </message>
    <message>
        <source>Blend fragment shader string</source>
        <translation>ブレンド用フラグメントシェーダー文字列</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>合成モード</translation>
    </message>
    <message>
        <source>Blur of the live preview brush when its stroke is placed, in preview pixels.</source>
        <translation>ライブプレビューのストロークを確定するときのぼかし幅。プレビューのピクセル単位。</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>両方</translation>
    </message>
    <message>
        <source>Brightness jitter</source>
        <translation>明度ジッター</translation>
    </message>
    <message>
        <source>Bristles</source>
        <translation>毛</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Brush Pen</source>
        <translation>筆ペン</translation>
    </message>
    <message>
        <source>Brush colour; its alpha is not used, opacity and flow are.</source>
        <translation>ブラシの色。アルファ値は使われず、不透明度と流量が使われます。</translation>
    </message>
    <message>
        <source>Brush tip: the tip images, or one that is drawn.</source>
        <translation>ブラシ先端。先端画像、または生成される形状。</translation>
    </message>
    <message>
        <source>By how much</source>
        <translation>連動の量</translation>
    </message>
    <message>
        <source>Calligraphy Nib</source>
        <translation>カリグラフィーペン</translation>
    </message>
    <message>
        <source>Canvas colour</source>
        <translation>下地の色</translation>
    </message>
    <message>
        <source>Chalk</source>
        <translation>チョーク</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>木炭</translation>
    </message>
    <message>
        <source>Chisel Marker</source>
        <translation>平芯マーカー</translation>
    </message>
    <message>
        <source>Clumps of hairs as apart as a comb&apos;s teeth, for fur, grass and grain of wood.</source>
        <translation>くしの歯のように分かれた毛束。毛並み、草、木目に。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Colour dropped into wet paper, which runs out in fingers as it likes.</source>
        <translation>濡れた紙に落とした色。気ままに枝分かれして広がります。</translation>
    </message>
    <message>
        <source>Colour influences</source>
        <translation>色の影響元</translation>
    </message>
    <message>
        <source>Colour jitter</source>
        <translation>色ジッター</translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation>紙吹雪</translation>
    </message>
    <message>
        <source>Conte</source>
        <translation>コンテ</translation>
    </message>
    <message>
        <source>Dabs</source>
        <translation>描点</translation>
    </message>
    <message>
        <source>Dabs at each place of the second line, whole; at most 64 are drawn.</source>
        <translation>2本目の線の各位置に置く描点の数。整数で、描かれるのは最大 64 個です。</translation>
    </message>
    <message>
        <source>Dabs at each place, whole; at most 64 are drawn.</source>
        <translation>各位置に置く描点の数。整数で、描かれるのは最大 64 個です。</translation>
    </message>
    <message>
        <source>Dabs influences</source>
        <translation>描点数の影響元</translation>
    </message>
    <message>
        <source>Dabs jitter</source>
        <translation>描点数ジッター</translation>
    </message>
    <message>
        <source>Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no soft edge.</source>
        <translation>描点を回転させず、ピクセルに合わせた位置と大きさで置きます。四角い先端の縁がぼけません。</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>比較(暗)</translation>
    </message>
    <message>
        <source>Depth influences</source>
        <translation>深さの影響元</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差</translation>
    </message>
    <message>
        <source>Distance from dab to dab as a fraction of the dab&apos;s size.</source>
        <translation>描点どうしの間隔。描点のサイズに対する割合。</translation>
    </message>
    <message>
        <source>Distance from dab to dab of the second line as a fraction of the dab&apos;s size.</source>
        <translation>2本目の線の描点どうしの間隔。描点のサイズに対する割合。</translation>
    </message>
    <message>
        <source>Distance per pointer sample, in buffer pixels, that counts as fully fast.</source>
        <translation>最高速とみなす、ポインターの1サンプルあたりの移動距離。バッファーのピクセル単位。</translation>
    </message>
    <message>
        <source>Divides the points handed to shape recognition.</source>
        <translation>図形認識に渡す点の座標を割る値。</translation>
    </message>
    <message>
        <source>Draws a second line with a tip of its own and paints only where both are.</source>
        <translation>独自の先端で2本目の線を描き、両方が重なるところだけを塗ります(デュアルブラシ)。</translation>
    </message>
    <message>
        <source>Draws curves through the pointer samples instead of straight lines.</source>
        <translation>ポインターのサンプルを直線ではなく曲線でつなぎます。</translation>
    </message>
    <message>
        <source>Dry Bristle</source>
        <translation>かすれ筆</translation>
    </message>
    <message>
        <source>Edge of a generated tip: 0 soft, 1 hard.</source>
        <translation>生成される先端の縁。0 で柔らかく、1 で硬くなります。</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>境界の幅</translation>
    </message>
    <message>
        <source>End size</source>
        <translation>抜きサイズ</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Even spacing</source>
        <translation>等間隔</translation>
    </message>
    <message>
        <source>Fallen leaves of four kinds, between two colours.</source>
        <translation>四種類の落ち葉。二つの色の間で変化します。</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>扇筆</translation>
    </message>
    <message>
        <source>Fast from</source>
        <translation>高速の基準</translation>
    </message>
    <message>
        <source>Felt Tip</source>
        <translation>フェルトペン</translation>
    </message>
    <message>
        <source>Filled outline</source>
        <translation>囲み塗り</translation>
    </message>
    <message>
        <source>Fills what the pen goes around while it goes.</source>
        <translation>ペンで囲んだ範囲を、描きながら塗りつぶします。</translation>
    </message>
    <message>
        <source>Flat Watercolour</source>
        <translation>水彩平筆</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Flow influences</source>
        <translation>流量の影響元</translation>
    </message>
    <message>
        <source>Flow jitter</source>
        <translation>流量ジッター</translation>
    </message>
    <message>
        <source>Follow size by</source>
        <translation>サイズの連動</translation>
    </message>
    <message>
        <source>Follow stroke</source>
        <translation>線の方向に追従</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>独立</translation>
    </message>
    <message>
        <source>General</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Gouache Dry</source>
        <translation>ガッシュ(ドライ)</translation>
    </message>
    <message>
        <source>Grainy Airbrush</source>
        <translation>粗粒エアブラシ</translation>
    </message>
    <message>
        <source>Hairs without paint that draw one colour into the other in fine streaks.</source>
        <translation>絵の具を含まない毛。色を細い筋にして隣の色へなじませます。</translation>
    </message>
    <message>
        <source>Hard Eraser</source>
        <translation>硬い消しゴム</translation>
    </message>
    <message>
        <source>Hard Pixel</source>
        <translation>ドットペン</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>硬さ</translation>
    </message>
    <message>
        <source>Height of the dab relative to its width.</source>
        <translation>描点の幅に対する高さ。</translation>
    </message>
    <message>
        <source>How a stroke meets the canvas; any other number, as normal.</source>
        <translation>ストロークをキャンバスに合成する方法。その他の数値は通常と同じです。</translation>
    </message>
    <message>
        <source>How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as they are thinner, or both.</source>
        <translation>3 ピクセルより細い描点の描き方。そのまま、3 ピクセルの大きさ、細い分だけ薄く、またはその両方。</translation>
    </message>
    <message>
        <source>How far dabs scatter, in dab sizes.</source>
        <translation>描点が散る距離。描点のサイズ単位。</translation>
    </message>
    <message>
        <source>How far that rim reaches into the stroke, in buffer pixels.</source>
        <translation>その縁がストロークの内側へ及ぶ幅。バッファーのピクセル単位。</translation>
    </message>
    <message>
        <source>How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 what lay under the dab before alone, 1 what they hold, at first loadQuantity of the brush colour, taking up more the wetter.</source>
        <translation>色混ぜブラシの毛が、それぞれ色をストロークに沿って運ぶ度合い。0 では直前の描点の下にあった色だけ、1 では毛が含む色だけを使います。毛は最初に「絵の具量」の分だけブラシの色を含み、水分量が多いほど色を拾います。</translation>
    </message>
    <message>
        <source>How far the paper&apos;s heights decide: light dabs catch its tops alone, firm ones and full flow fill its valleys; 0 not at all.</source>
        <translation>紙の凹凸の効き具合。弱い描点は山だけに乗り、強い描点や最大の流量では谷まで埋まります。0 では効きません。</translation>
    </message>
    <message>
        <source>How far the second line&apos;s dabs scatter, in dab sizes.</source>
        <translation>2本目の線の描点が散る距離。描点のサイズ単位。</translation>
    </message>
    <message>
        <source>How much paint one dab lays down; dabs build up where they overlap.</source>
        <translation>一つの描点で乗る絵の具の量。重なったところは濃くなります。</translation>
    </message>
    <message>
        <source>How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at all, 1 until nothing is left of it.</source>
        <translation>水彩のように、ストロークの内側が縁より薄く乾く度合い。0 では変わらず、1 では内側に何も残りません。</translation>
    </message>
    <message>
        <source>How quickly the measured speed follows the pointer.</source>
        <translation>測定した速度がポインターに追従する速さ。</translation>
    </message>
    <message>
        <source>How the second line&apos;s size follows radius; any other number, not at all.</source>
        <translation>2本目の線のサイズを「サイズ」に連動させる方法。その他の数値では連動しません。</translation>
    </message>
    <message>
        <source>Hue jitter</source>
        <translation>色相ジッター</translation>
    </message>
    <message>
        <source>Image influences</source>
        <translation>画像の影響元</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が、描点を紙に押し付ける強さに与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on that number, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度がその数に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the flow, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が流量に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the mixing, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が混色に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the rotation, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が回転に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the roundness, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が真円率に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the scatter, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が散布に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the size, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度がサイズに与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each.</source>
        <translation>筆圧・傾き・速度が先端画像の選択に与える影響。それぞれ -1〜1。</translation>
    </message>
    <message>
        <source>Ink Pen</source>
        <translation>つけペン</translation>
    </message>
    <message>
        <source>Ink Spatter</source>
        <translation>インク飛沫</translation>
    </message>
    <message>
        <source>Ink flicked off a brush, in blots that burst and drops that fly.</source>
        <translation>筆から弾いたインク。はじけるしみと飛び散るしずく。</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>最大サイズ</translation>
    </message>
    <message>
        <source>Largest size, as a fraction of radius.</source>
        <translation>最大サイズ。「サイズ」に対する割合。</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Least flow</source>
        <translation>最小流量</translation>
    </message>
    <message>
        <source>Length of that ramp, in dabs.</source>
        <translation>立ち上げの長さ。描点の数。</translation>
    </message>
    <message>
        <source>Length of the start taper, in buffer pixels.</source>
        <translation>入りの長さ。バッファーのピクセル単位。</translation>
    </message>
    <message>
        <source>Lets the paper through more, or less, all over.</source>
        <translation>紙全体で、絵の具の通りやすさを増減します。</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>比較(明)</translation>
    </message>
    <message>
        <source>Live Fill</source>
        <translation>ライブ塗りつぶし</translation>
    </message>
    <message>
        <source>Lower bound of the influenced flow, as a fraction of flow.</source>
        <translation>影響を受けた流量の下限。「流量」に対する割合。</translation>
    </message>
    <message>
        <source>Lower bound of the roundness.</source>
        <translation>真円率の下限。</translation>
    </message>
    <message>
        <source>Meadow Grass</source>
        <translation>野原の草</translation>
    </message>
    <message>
        <source>Mechanical Pencil</source>
        <translation>シャープペンシル</translation>
    </message>
    <message>
        <source>Mirrors every other dab left to right, at random.</source>
        <translation>ランダムに、およそ一つおきの描点を左右反転します。</translation>
    </message>
    <message>
        <source>Mirrors every other dab top to bottom, at random.</source>
        <translation>ランダムに、およそ一つおきの描点を上下反転します。</translation>
    </message>
    <message>
        <source>Mirrors the tip left to right.</source>
        <translation>先端を左右反転します。</translation>
    </message>
    <message>
        <source>Mirrors the tip top to bottom.</source>
        <translation>先端を上下反転します。</translation>
    </message>
    <message>
        <source>Most flow</source>
        <translation>最大流量</translation>
    </message>
    <message>
        <source>Much water and little pigment, in pools that dry unevenly and leave a rim.</source>
        <translation>水が多く顔料の少ない水彩。水たまりがむらに乾き、縁が残ります。</translation>
    </message>
    <message>
        <source>Multicolour</source>
        <translation>マルチカラー</translation>
    </message>
    <message>
        <source>Multicolour: the tip&apos;s own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters.</source>
        <translation>マルチカラー。先端自身の色で塗り(黒い部分はブラシの色)、描点ごとに色相・彩度・明度ジッターで変化します。</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>No smudging</source>
        <translation>色混ぜなし</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Number of dabs after which the paint has run out; 0 or 1 for never.</source>
        <translation>絵の具がなくなるまでの描点の数。0 または 1 なら、なくなることはありません。</translation>
    </message>
    <message>
        <source>Oil Filbert</source>
        <translation>油彩フィルバート</translation>
    </message>
    <message>
        <source>Oil Flat</source>
        <translation>油彩平筆</translation>
    </message>
    <message>
        <source>Oil Impasto</source>
        <translation>油彩インパスト</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity of a stroke as a whole, however often it crosses itself.</source>
        <translation>ストローク全体の不透明度。線が何度重なっても変わりません。</translation>
    </message>
    <message>
        <source>Opaque matt paint, a little uneven in tone, that breaks up on rough paper.</source>
        <translation>不透明でマットな絵の具。色調にわずかなむらがあり、粗い紙ではかすれます。</translation>
    </message>
    <message>
        <source>Outline blur</source>
        <translation>輪郭ぼかし</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>絵の具量</translation>
    </message>
    <message>
        <source>Paint from a can: coarse drops all over the jet, more of them under pressure.</source>
        <translation>スプレー缶の塗料。全体に粗い粒が飛び、筆圧が強いほど粒が増えます。</translation>
    </message>
    <message>
        <source>Paints through the paper given as the mask image.</source>
        <translation>マスク画像で指定した紙質を通して塗ります。</translation>
    </message>
    <message>
        <source>Palette Knife</source>
        <translation>ペインティングナイフ</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙質</translation>
    </message>
    <message>
        <source>Paper brightness</source>
        <translation>紙質の明るさ</translation>
    </message>
    <message>
        <source>Paper contrast</source>
        <translation>紙質のコントラスト</translation>
    </message>
    <message>
        <source>Paper depth</source>
        <translation>紙質の深さ</translation>
    </message>
    <message>
        <source>Paper scale</source>
        <translation>紙質の拡大率</translation>
    </message>
    <message>
        <source>Paper scraps of all colours, thrown wide.</source>
        <translation>広く散らばる色とりどりの紙片。</translation>
    </message>
    <message>
        <source>Paper, repeated over the canvas: white lets paint through, black and transparent hold it back.</source>
        <translation>キャンバスに繰り返される紙質。白は絵の具を通し、黒と透明は通しません。</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>鉛筆</translation>
    </message>
    <message>
        <source>Pencil 2B</source>
        <translation>鉛筆 2B</translation>
    </message>
    <message>
        <source>Picks one of several tip images at random for each dab.</source>
        <translation>描点ごとに、複数の先端画像から一つをランダムに選びます。</translation>
    </message>
    <message>
        <source>Pixel aligned</source>
        <translation>ピクセルに整列</translation>
    </message>
    <message>
        <source>Plastic paint from a bristle brush: covers at once and keeps the hairs&apos; furrows.</source>
        <translation>豚毛筆のアクリル絵の具。一度で覆い、毛の筋が残ります。</translation>
    </message>
    <message>
        <source>Pointer samples gathered before a segment is drawn: higher is steadier and lags more.</source>
        <translation>線分を描く前に溜めるポインターのサンプル数。多いほど線が安定し、遅れも大きくなります。</translation>
    </message>
    <message>
        <source>Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile.</source>
        <translation>ストロークを、意図した図形に置き換えるか、図形でなければ消します。その間、ブラシ種類 3 と 4 は普通の描点になります。</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>レーキ</translation>
    </message>
    <message>
        <source>Ramp length</source>
        <translation>立ち上げの長さ</translation>
    </message>
    <message>
        <source>Ramp up</source>
        <translation>徐々に混色</translation>
    </message>
    <message>
        <source>Ramps the mixed amount up over a smudge stroke&apos;s first dabs.</source>
        <translation>色混ぜストロークの最初の描点で、混ぜる量を徐々に増やします。</translation>
    </message>
    <message>
        <source>Random across</source>
        <translation>左右ランダム反転</translation>
    </message>
    <message>
        <source>Random image</source>
        <translation>画像ランダム</translation>
    </message>
    <message>
        <source>Random mixing of each dab toward the secondary colour, 0 to 1.</source>
        <translation>描点ごとに補助色をランダムに混ぜる量。0〜1。</translation>
    </message>
    <message>
        <source>Random rotation of each dab, 0 to 1 for up to half a turn either way.</source>
        <translation>描点ごとのランダムな回転。0〜1 で、1 で両方向に最大半回転。</translation>
    </message>
    <message>
        <source>Random shrinking of dabs, 0 to 1.</source>
        <translation>描点をランダムに小さくする量。0〜1。</translation>
    </message>
    <message>
        <source>Random start</source>
        <translation>開始角度ランダム</translation>
    </message>
    <message>
        <source>Random upright</source>
        <translation>上下ランダム反転</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s brightness, 0 to 1.</source>
        <translation>描点ごとの明度のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s hue, 0 to 1.</source>
        <translation>描点ごとの色相のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s saturation, 0 to 1.</source>
        <translation>描点ごとの彩度のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Random variation of that number, 0 to 1.</source>
        <translation>その数のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Random variation of the flow, 0 to 1.</source>
        <translation>流量のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Random variation of the roundness, 0 to 1.</source>
        <translation>真円率のランダムな変化。0〜1。</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>比率</translation>
    </message>
    <message>
        <source>Recog point scale</source>
        <translation>認識点の縮尺</translation>
    </message>
    <message>
        <source>Recogition</source>
        <translation>図形認識</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>図形認識</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>リング</translation>
    </message>
    <message>
        <source>Rotation of the tip in radians, counter-clockwise.</source>
        <translation>先端の回転。ラジアン単位、反時計回り。</translation>
    </message>
    <message>
        <source>Round Marker</source>
        <translation>丸芯マーカー</translation>
    </message>
    <message>
        <source>Round Watercolour</source>
        <translation>水彩丸筆</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>角丸長方形</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>真円率</translation>
    </message>
    <message>
        <source>Roundness influences</source>
        <translation>真円率の影響元</translation>
    </message>
    <message>
        <source>Roundness jitter</source>
        <translation>真円率ジッター</translation>
    </message>
    <message>
        <source>Rubs out all, to a clean edge.</source>
        <translation>くっきりした縁で完全に消します。</translation>
    </message>
    <message>
        <source>Runs dry after</source>
        <translation>絵の具切れまで</translation>
    </message>
    <message>
        <source>Saturation jitter</source>
        <translation>彩度ジッター</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>散布</translation>
    </message>
    <message>
        <source>Scatter influences</source>
        <translation>散布の影響元</translation>
    </message>
    <message>
        <source>Scatters dabs all around instead of only across the stroke.</source>
        <translation>描点を線と直角の方向だけでなく、全方向に散らします。</translation>
    </message>
    <message>
        <source>Scatters the second line&apos;s dabs all around instead of only across the stroke.</source>
        <translation>2本目の線の描点を、線と直角の方向だけでなく、全方向に散らします。</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>補助色</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>2本目の線</translation>
    </message>
    <message>
        <source>Secondary colour, toward which the colour jitter mixes.</source>
        <translation>補助色。色ジッターで混ざる色です。</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Size at the start of the stroke&apos;s taper, as a fraction of radius; 0 for no taper.</source>
        <translation>入りの始点のサイズ。「サイズ」に対する割合。0 では入りを付けません。</translation>
    </message>
    <message>
        <source>Size at the very end of the stroke, as a fraction of radius; 0 for no taper.</source>
        <translation>ストローク終端のサイズ。「サイズ」に対する割合。0 では抜きを付けません。</translation>
    </message>
    <message>
        <source>Size influences</source>
        <translation>サイズの影響元</translation>
    </message>
    <message>
        <source>Size jitter</source>
        <translation>サイズジッター</translation>
    </message>
    <message>
        <source>Size of a full dab across, in buffer pixels.</source>
        <translation>最大の描点の直径。バッファーのピクセル単位。</translation>
    </message>
    <message>
        <source>Size of one paper tile on the canvas, relative to the mask image.</source>
        <translation>キャンバス上での紙質タイル1枚の大きさ。マスク画像に対する倍率。</translation>
    </message>
    <message>
        <source>Size of the second line&apos;s dabs, in buffer pixels.</source>
        <translation>2本目の線の描点のサイズ。バッファーのピクセル単位。</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>最小サイズ</translation>
    </message>
    <message>
        <source>Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest.</source>
        <translation>最小サイズ。「サイズ」に対する割合。影響元がないときは、最小と最大の中間で描かれます。</translation>
    </message>
    <message>
        <source>Smooth curves</source>
        <translation>曲線補間</translation>
    </message>
    <message>
        <source>Smudge</source>
        <translation>色混ぜ</translation>
    </message>
    <message>
        <source>Smudge Finger</source>
        <translation>指先</translation>
    </message>
    <message>
        <source>Soft Airbrush</source>
        <translation>ソフトエアブラシ</translation>
    </message>
    <message>
        <source>Soft Blender</source>
        <translation>ソフトブレンダー</translation>
    </message>
    <message>
        <source>Soft Eraser</source>
        <translation>ソフト消しゴム</translation>
    </message>
    <message>
        <source>Soft Pastel</source>
        <translation>ソフトパステル</translation>
    </message>
    <message>
        <source>Soft disc</source>
        <translation>柔らかい円</translation>
    </message>
    <message>
        <source>Soft pastel: powder that fills the tooth and blooms under pressure.</source>
        <translation>ソフトパステル。粉が紙の目を埋め、筆圧で豊かに色づきます。</translation>
    </message>
    <message>
        <source>Source of one of the blend programs, which selects its blend type.</source>
        <translation>ブレンドプログラムのソース。合成モードがこれで決まります。</translation>
    </message>
    <message>
        <source>Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.</source>
        <translation>ストロークに沿って描点を等間隔に置きます。オフではポインターのサンプルごとに一つ置きます。</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Speed Pen</source>
        <translation>スピードペン</translation>
    </message>
    <message>
        <source>Speed response</source>
        <translation>速度の追従</translation>
    </message>
    <message>
        <source>Sponge</source>
        <translation>スポンジ</translation>
    </message>
    <message>
        <source>Spray Can</source>
        <translation>スプレー缶</translation>
    </message>
    <message>
        <source>Start length</source>
        <translation>入りの長さ</translation>
    </message>
    <message>
        <source>Start size</source>
        <translation>入りサイズ</translation>
    </message>
    <message>
        <source>Steadying</source>
        <translation>手ぶれ補正</translation>
    </message>
    <message>
        <source>Steepness of the paper&apos;s heights: above 1 its grain has harder edges, 0 is smooth.</source>
        <translation>紙の凹凸の急さ。1 を超えると紙目の縁が硬くなり、0 では滑らかです。</translation>
    </message>
    <message>
        <source>Switches off the smudge behaviour of brush type 3.</source>
        <translation>ブラシ種類 3 の色混ぜをオフにします。</translation>
    </message>
    <message>
        <source>Takes a little away with each pass, without an edge.</source>
        <translation>縁を残さず、重ねるたびに少しずつ消します。</translation>
    </message>
    <message>
        <source>Technical Pen</source>
        <translation>製図ペン</translation>
    </message>
    <message>
        <source>Textured Gouache</source>
        <translation>ガッシュ(テクスチャ)</translation>
    </message>
    <message>
        <source>That difference in buffer pixels, or that ratio.</source>
        <translation>その差(バッファーのピクセル単位)または比率。</translation>
    </message>
    <message>
        <source>The rest of the paint on a brush: broken strokes of single hairs over rough paper.</source>
        <translation>筆に残った絵の具。粗い紙に毛の一本ずつの途切れた線を引きます。</translation>
    </message>
    <message>
        <source>Thick paint from a hog&apos;s hair brush, which mixes with what is wet below it.</source>
        <translation>豚毛筆の厚塗り絵の具。下の乾いていない色と混ざります。</translation>
    </message>
    <message>
        <source>Thickness of the ring tip in pixels, or width to height of the rectangle tip.</source>
        <translation>リング先端の太さ(ピクセル)、または長方形先端の縦に対する横の比率。</translation>
    </message>
    <message>
        <source>Thin hairs spread wide, for foliage, fur and hair.</source>
        <translation>大きく広がった細い毛。葉、毛並み、髪に。</translation>
    </message>
    <message>
        <source>Thin lines</source>
        <translation>細線</translation>
    </message>
    <message>
        <source>Thinned flow</source>
        <translation>流量を薄く</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>先端</translation>
    </message>
    <message>
        <source>Tip image</source>
        <translation>先端画像</translation>
    </message>
    <message>
        <source>Tip image of the second line.</source>
        <translation>2本目の線の先端画像。</translation>
    </message>
    <message>
        <source>Tip images</source>
        <translation>先端画像</translation>
    </message>
    <message>
        <source>Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode.</source>
        <translation>先端の種類 0 で使う先端画像。16 枚まで。アルファ値が形になり、マルチカラーでは画像自身の色が出ます。</translation>
    </message>
    <message>
        <source>Tip proportion</source>
        <translation>先端の比率</translation>
    </message>
    <message>
        <source>True Blender</source>
        <translation>トゥルーブレンダー</translation>
    </message>
    <message>
        <source>Tufts of grass that stand upright along the stroke.</source>
        <translation>線に沿ってまっすぐ生える草の束。</translation>
    </message>
    <message>
        <source>Turns the tip by a random angle at the start of every stroke.</source>
        <translation>ストロークの始まりごとに先端をランダムな角度に回します。</translation>
    </message>
    <message>
        <source>Turns the tip into the direction of the stroke.</source>
        <translation>先端を線の方向に回します。</translation>
    </message>
    <message>
        <source>Upper bound of the influenced flow, as a fraction of flow.</source>
        <translation>影響を受けた流量の上限。「流量」に対する割合。</translation>
    </message>
    <message>
        <source>Use paper</source>
        <translation>紙質を使用</translation>
    </message>
    <message>
        <source>Watery Wash</source>
        <translation>水多めウォッシュ</translation>
    </message>
    <message>
        <source>Wax Crayon</source>
        <translation>ワックスクレヨン</translation>
    </message>
    <message>
        <source>Wet edge</source>
        <translation>水彩境界</translation>
    </message>
    <message>
        <source>Wetness</source>
        <translation>水分量</translation>
    </message>
    <message>
        <source>Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all.</source>
        <translation>色混ぜブラシの水分量。触れた下地の色をどれだけ運ぶか。0 では運ばず、1 ではすべて運びます。</translation>
    </message>
    <message>
        <source>What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.</source>
        <translation>色混ぜブラシが置く色。0 では自身の色だけ、1 では下地の色だけになります。</translation>
    </message>
    <message>
        <source>What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other number, dabs.</source>
        <translation>ストロークの種類。描点、色を混ぜる描点、または描きながら表示される囲み塗り。その他の数値では描点。</translation>
    </message>
    <message>
        <source>Whole pixels without a soft edge, for pixel art and masks.</source>
        <translation>縁のぼけないピクセル単位の線。ドット絵やマスクに。</translation>
    </message>
    <message>
        <source>acrylic</source>
        <translation>アクリル</translation>
    </message>
    <message>
        <source>airbrush</source>
        <translation>エアブラシ</translation>
    </message>
    <message>
        <source>blender</source>
        <translation>ブレンダー</translation>
    </message>
    <message>
        <source>chalk</source>
        <translation>チョーク</translation>
    </message>
    <message>
        <source>charcoal</source>
        <translation>木炭</translation>
    </message>
    <message>
        <source>crayon</source>
        <translation>クレヨン</translation>
    </message>
    <message>
        <source>dry</source>
        <translation>ドライ</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>gouache</source>
        <translation>ガッシュ</translation>
    </message>
    <message>
        <source>ink</source>
        <translation>インク</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>油彩</translation>
    </message>
    <message>
        <source>pastel</source>
        <translation>パステル</translation>
    </message>
    <message>
        <source>pencil</source>
        <translation>鉛筆</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>smudge</source>
        <translation>色混ぜ</translation>
    </message>
    <message>
        <source>spray</source>
        <translation>スプレー</translation>
    </message>
    <message>
        <source>stamp</source>
        <translation>スタンプ</translation>
    </message>
    <message>
        <source>tilt</source>
        <translation>傾き</translation>
    </message>
    <message>
        <source>watercolour</source>
        <translation>水彩</translation>
    </message>
    <message>
        <source>wet</source>
        <translation>ウェット</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter</name>
    <message>
        <source>a canvas is at least 1 x 1 pixel large</source>
        <translation>キャンバスは 1 x 1 ピクセル以上が必要です</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a side has at most %3</source>
        <translation>%1 x %2 ピクセルは大きすぎます。一辺は最大 %3 です</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a canvas has at most %3 million</source>
        <translation>%1 x %2 ピクセルは大きすぎます。キャンバスは最大 %3 百万ピクセルです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>「%1」を保存できません: %2。</translation>
    </message>
    <message>
        <source>the canvas cannot be read</source>
        <translation>キャンバスを読み取れません</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>「%1」には保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>保存しますか?</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <source>Export Brush</source>
        <translation>ブラシをエクスポート</translation>
    </message>
    <message>
        <source>Brush (*.xbf)</source>
        <translation>ブラシ (*.xbf)</translation>
    </message>
    <message>
        <source>Import Brushes</source>
        <translation>ブラシをインポート</translation>
    </message>
    <message>
        <source>Brushes (*.xbf %1)</source>
        <translation>ブラシ (*.xbf %1)</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>There is nothing to paint with; the log says what is missing.</source>
        <translation>描画機能を利用できません。足りないものはログに記録されています。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>it does not begin with &quot;GIMP Palette&quot;</source>
        <translation>先頭が &quot;GIMP Palette&quot; ではありません</translation>
    </message>
    <message>
        <source>line %1 is no colour of three numbers up to 255</source>
        <translation>%1 行目が、255 以下の数値 3 つの色ではありません</translation>
    </message>
    <message>
        <source>it has more than %1 colours</source>
        <translation>色が %1 色を超えています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>「%1」に書き込めませんでした: %2。</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had here.</source>
        <translation>ここでは %1 × %2 ピクセルのキャンバスを作れません。</translation>
    </message>
    <message>
        <source>no picture is written as %1; the kinds are %2</source>
        <translation>%1 形式では保存できません。使える形式は %2 です</translation>
    </message>
    <message>
        <source>This kind of file has no layers.</source>
        <translation>このファイル形式にはレイヤーがありません。</translation>
    </message>
    <message>
        <source>This kind of file cannot be seen through.</source>
        <translation>このファイル形式は透明にできません。</translation>
    </message>
    <message>
        <source>It shows all of them together. They stay here as long as this picture is open, and an OpenRaster file keeps them.</source>
        <translation>すべてのレイヤーが合成されて保存されます。この画像を開いている間、レイヤーはそのまま残ります。OpenRaster ファイルならレイヤーも保存されます。</translation>
    </message>
    <message>
        <source>What is transparent is filled with the paper&apos;s colour. A PNG file keeps it.</source>
        <translation>透明な部分は紙の色で塗りつぶされます。PNG ファイルなら透明のまま保存されます。</translation>
    </message>
    <message>
        <source>Save Flattened</source>
        <translation>統合して保存</translation>
    </message>
    <message>
        <source>Save Filled</source>
        <translation>塗りつぶして保存</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>PNG で保存…</translation>
    </message>
    <message>
        <source>Save as OpenRaster…</source>
        <translation>OpenRaster で保存…</translation>
    </message>
    <message>
        <source>OpenRaster, with layers (*.ora)</source>
        <translation>OpenRaster、レイヤー付き (*.ora)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>JPEG 画像 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP image, lossless (*.webp)</source>
        <translation>WebP 画像、可逆圧縮 (*.webp)</translation>
    </message>
    <message>
        <source>Other images (%1)</source>
        <translation>その他の画像 (%1)</translation>
    </message>
    <message>
        <source>Import Palettes</source>
        <translation>パレットをインポート</translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation>GIMP パレット (*.gpl)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>パレットをエクスポート</translation>
    </message>
    <message>
        <source>GIMP palette (*.gpl)</source>
        <translation>GIMP パレット (*.gpl)</translation>
    </message>
    <message>
        <source>Export Recording</source>
        <translation>記録の書き出し</translation>
    </message>
    <message>
        <source>Recording (*.jsonl)</source>
        <translation>記録 (*.jsonl)</translation>
    </message>
    <message>
        <source>Export Time-Lapse</source>
        <translation>タイムラプスの書き出し</translation>
    </message>
    <message>
        <source>Animated WebP (*.webp)</source>
        <translation>アニメーション WebP (*.webp)</translation>
    </message>
    <message>
        <source>Folder of pictures (*)</source>
        <translation>画像のフォルダー (*)</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 のコピー %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Autosave</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushBar</name>
    <message>
        <source>Tolerance</source>
        <translation>許容値</translation>
    </message>
    <message>
        <source>Brush size and opacity</source>
        <translation>ブラシのサイズと不透明度</translation>
    </message>
    <message>
        <source>Size of the brush, by every drag, wheel or arrow key the same part of it</source>
        <translation>ブラシのサイズ。ドラッグ、ホイール、矢印キーのたびに同じ割合で変わります</translation>
    </message>
    <message>
        <source>Opacity of each stroke</source>
        <translation>各ストロークの不透明度</translation>
    </message>
    <message>
        <source>How much colours may differ that a fill takes for one</source>
        <translation>塗りつぶしで同じ色とみなす色の差</translation>
    </message>
    <message>
        <source>A double click, F2 or Enter types the number</source>
        <translation>ダブルクリック、F2、Enter で数値を入力できます</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushPanel</name>
    <message>
        <source>Search settings</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Reset to preset</source>
        <translation>プリセットに戻す</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Gives every brush setting what the chosen brush has</source>
        <translation>すべてのブラシ設定を、選択中のブラシの値に戻します</translation>
    </message>
    <message>
        <source>Gives every brush setting its default</source>
        <translation>すべてのブラシ設定を初期値に戻します</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>色を入れ替え (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I)</source>
        <translation>キャンバスから色を取得 (I)</translation>
    </message>
    <message>
        <source>No setting is called so.</source>
        <translation>その名前の設定はありません。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushRow</name>
    <message>
        <source>Reset %1</source>
        <translation>%1 をリセット</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasSizeDialog</name>
    <message>
        <source>Canvas Size</source>
        <translation>キャンバスサイズ</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>パーセント</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>幅(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高さ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>単位(&amp;U)</translation>
    </message>
    <message>
        <source>What is there stays</source>
        <translation>今の絵の位置</translation>
    </message>
    <message>
        <source>At the top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>At the top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>At the left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>At the right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>At the bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>At the bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>%1 × %2 pixels; what lies beyond is cut off.</source>
        <translation>%1 × %2 ピクセル。はみ出す部分は切り取られます。</translation>
    </message>
    <message>
        <source>%1 × %2 pixels.</source>
        <translation>%1 × %2 ピクセル。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasStatus</name>
    <message>
        <source>Shapes</source>
        <translation>図形</translation>
    </message>
    <message>
        <source>What paints this picture</source>
        <translation>この画像を描画しているもの</translation>
    </message>
    <message>
        <source>Pressure %1 %</source>
        <translation>筆圧 %1 %</translation>
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
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Mirrored, %1</source>
        <translation>左右反転、%1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasViewport</name>
    <message>
        <source>Canvas</source>
        <translation>キャンバス</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ChoiceEditor</name>
    <message>
        <source>Other (%1)</source>
        <translation>その他 (%1)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorPanel</name>
    <message>
        <source>Foreground colour</source>
        <translation>描画色</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>最近使った色</translation>
    </message>
    <message>
        <source>%1: what is chosen below</source>
        <translation>%1: 下で選ぶ色</translation>
    </message>
    <message>
        <source>Colour as red, green and blue</source>
        <translation>赤・緑・青で表した色</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal</source>
        <translation>#rrggbb、#rgb、または teal などの名前</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>色を入れ替え (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I, or hold Ctrl)</source>
        <translation>キャンバスから色を取得 (I、または Ctrl を押しながら)</translation>
    </message>
    <message>
        <source>More to do with colours</source>
        <translation>色に対するその他の操作</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>&amp;Eyedropper Takes</source>
        <translation>スポイトの範囲(&amp;E)</translation>
    </message>
    <message>
        <source>One Pixel</source>
        <translation>1 ピクセル</translation>
    </message>
    <message>
        <source>Average of %1 × %1 Pixels</source>
        <translation>%1 × %1 ピクセルの平均</translation>
    </message>
    <message>
        <source>&amp;Forget Recent Colours</source>
        <translation>最近使った色を消去(&amp;F)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorSliders</name>
    <message>
        <source>Lightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Chroma</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorWheel</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Hue: drag, or the arrow keys</source>
        <translation>色相: ドラッグまたは矢印キー</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 度</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ControlEditor</name>
    <message>
        <source>Pressure</source>
        <translation>筆圧</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>傾き</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1(%2)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Document</name>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>保存する画像がありません。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ImagesEditor</name>
    <message>
        <source>Load…</source>
        <translation>読み込み…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: at most %2 images are used.</source>
        <translation>「%1」は除外されました。使える画像は最大 %2 枚です。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LayerPanel</name>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Lock alpha</source>
        <translation>透明部分をロック</translation>
    </message>
    <message>
        <source>Strokes change its colours alone</source>
        <translation>ストロークは色だけを変え、透明部分は変わりません</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Blend mode of the layer</source>
        <translation>レイヤーの合成モード</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>レイヤーの不透明度</translation>
    </message>
    <message>
        <source>Add a layer</source>
        <translation>レイヤーを追加</translation>
    </message>
    <message>
        <source>Duplicate the layer</source>
        <translation>レイヤーを複製</translation>
    </message>
    <message>
        <source>Move the layer up</source>
        <translation>レイヤーを上へ移動</translation>
    </message>
    <message>
        <source>Move the layer down</source>
        <translation>レイヤーを下へ移動</translation>
    </message>
    <message>
        <source>Merge with the layer below</source>
        <translation>下のレイヤーと結合</translation>
    </message>
    <message>
        <source>Delete the layer</source>
        <translation>レイヤーを削除</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>合成モード</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Ticked layers are seen; a double click names one</source>
        <translation>チェックしたレイヤーが表示されます。ダブルクリックで名前を変更できます</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>レイヤー %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LeftPicturesDialog</name>
    <message>
        <source>Recover Pictures</source>
        <translation>画像の復元</translation>
    </message>
    <message>
        <source>Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo steps where they are left.</source>
        <translation>これらの画像を描いている途中で Dabpainter が予期せず終了しました。どれも続きから再開でき、残っていれば取り消し履歴も使えます。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>画像はありません。</translation>
    </message>
    <message>
        <source>without undo steps</source>
        <translation>取り消し履歴なし</translation>
    </message>
    <message>
        <source>one undo step</source>
        <translation>取り消し履歴 1 回分</translation>
    </message>
    <message>
        <source>%1 undo steps</source>
        <translation>取り消し履歴 %1 回分</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3, %4 on the disk</source>
        <translation>%1 × %2 ピクセル、%3、ディスク上で %4</translation>
    </message>
    <message>
        <source>Delete this picture for good?</source>
        <translation>この画像を完全に削除しますか?</translation>
    </message>
    <message>
        <source>It cannot be deleted: it is in use, or the disk refuses.</source>
        <translation>削除できません。使用中か、ディスクに拒否されました。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::MainWindow</name>
    <message>
        <source>The graphics card cannot paint this picture</source>
        <translation>グラフィックカードではこの画像を描画できません</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had from this graphics driver.</source>
        <translation>このグラフィックドライバーでは %1 × %2 ピクセルのキャンバスを作れません。</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here, its undo steps are not</source>
        <translation>グラフィックカードとの接続が一時失われました。画像は残っていますが、取り消し履歴は失われました</translation>
    </message>
    <message>
        <source>The picture cannot be recovered: %1.</source>
        <translation>画像を復元できません: %1。</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>Place Image</source>
        <translation>画像を配置</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新規(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Place Image…</source>
        <translation>画像を配置(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Recover Pictures…</source>
        <translation>画像を復元(&amp;R)…</translation>
    </message>
    <message>
        <source>No run has left a picture</source>
        <translation>復元できる画像はありません</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Undo &amp;Steps…</source>
        <translation>取り消し回数(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Keys…</source>
        <translation>キー割り当て(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>キャンバス(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>消去(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paint with</source>
        <translation>描画に使う装置(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>自動(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Graphics Card</source>
        <translation>グラフィックカード(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Processor</source>
        <translation>プロセッサー(&amp;P)</translation>
    </message>
    <message>
        <source>Holds for pictures that are made or opened from now on</source>
        <translation>以後に作成または開く画像に適用されます</translation>
    </message>
    <message>
        <source>&amp;Fingers</source>
        <translation>指での操作(&amp;F)</translation>
    </message>
    <message>
        <source>Move the Canvas Once a &amp;Pen Was Seen</source>
        <translation>ペンの検出後はキャンバスを移動(&amp;P)</translation>
    </message>
    <message>
        <source>Always &amp;Move the Canvas</source>
        <translation>常にキャンバスを移動(&amp;M)</translation>
    </message>
    <message>
        <source>Al&amp;ways Paint</source>
        <translation>常に描画(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation>ブラシ(&amp;B)</translation>
    </message>
    <message>
        <source>Size by Moving the Pointer</source>
        <translation>ポインター移動でサイズを変更</translation>
    </message>
    <message>
        <source>&amp;Previous Brush</source>
        <translation>前のブラシ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>小さく(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>大きく(&amp;L)</translation>
    </message>
    <message>
        <source>So&amp;fter</source>
        <translation>柔らかく(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Harder</source>
        <translation>硬く(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation>色を入れ替え(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation>既定の色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Eyedropper</source>
        <translation>スポイト(&amp;E)</translation>
    </message>
    <message>
        <source>Reco&amp;gnise Shapes</source>
        <translation>図形を認識(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>すべての設定をリセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Reset to Preset</source>
        <translation>プリセットに戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>等倍表示(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Whole Canvas</source>
        <translation>キャンバス全体(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>パネル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全画面表示(&amp;F)</translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Brush settings</source>
        <translation>ブラシ設定</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>The disk takes no undo steps: save, as a crash would lose this picture</source>
        <translation>ディスクに取り消し履歴を書き込めません。保存してください。このまま異常終了すると画像が失われます</translation>
    </message>
    <message>
        <source>No shape was recognised</source>
        <translation>図形を認識できませんでした</translation>
    </message>
    <message>
        <source>Undo Steps</source>
        <translation>取り消し回数</translation>
    </message>
    <message>
        <source>Steps that can be undone:</source>
        <translation>取り消せる回数:</translation>
    </message>
    <message>
        <source>Strokes become shapes; what is none is taken away</source>
        <translation>ストロークは図形になります。図形でないものは消されます</translation>
    </message>
    <message>
        <source>Strokes stay as they are drawn</source>
        <translation>ストロークは描いたままになります</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Canvas &amp;Size…</source>
        <translation>キャンバスサイズ(&amp;S)…</translation>
    </message>
    <message>
        <source>Crop &amp;to Drawn</source>
        <translation>描いた範囲に切り抜き(&amp;T)</translation>
    </message>
    <message>
        <source>Nothing is drawn</source>
        <translation>何も描かれていません</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>Turn &amp;Right</source>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>回転を戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>左右反転(&amp;M)</translation>
    </message>
    <message>
        <source>Turn by Dragging</source>
        <translation>ドラッグで回転</translation>
    </message>
    <message>
        <source>Pen Pr&amp;essure…</source>
        <translation>筆圧(&amp;E)…</translation>
    </message>
    <message>
        <source>Steady hand</source>
        <translation>手ぶれ補正</translation>
    </message>
    <message>
        <source>S&amp;ymmetry</source>
        <translation>対称(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>なし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Left and Right</source>
        <translation>左右(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Above and Below</source>
        <translation>上下(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>両方(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Rays</source>
        <translation>放射状(&amp;R)</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>対称</translation>
    </message>
    <message>
        <source>Draws copies of every stroke, mirrored or turned</source>
        <translation>すべてのストロークの複製を、反転または回転して描きます</translation>
    </message>
    <message>
        <source>N&amp;umber of Rays…</source>
        <translation>放射の数(&amp;U)…</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>放射</translation>
    </message>
    <message>
        <source>Rays of the symmetry:</source>
        <translation>対称の放射の数:</translation>
    </message>
    <message>
        <source>&amp;Mirrored Rays</source>
        <translation>放射を反転(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Centre Here</source>
        <translation>ここを中心にする(&amp;C)</translation>
    </message>
    <message>
        <source>Centre in the M&amp;iddle</source>
        <translation>中心をキャンバス中央に(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Drag the Centre</source>
        <translation>中心をドラッグ(&amp;D)</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>最近使ったファイル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>システムに合わせる(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Painter&apos;s &amp;Guide</source>
        <translation>描き方ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About Dabpainter</source>
        <translation>Dabpainter について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>記録(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>記録する(&amp;R)</translation>
    </message>
    <message>
        <source>What is painted from here on is kept, to be exported</source>
        <translation>ここから描いたものを書き出し用に残します</translation>
    </message>
    <message>
        <source>&amp;Export Recording…</source>
        <translation>記録を書き出す(&amp;E)…</translation>
    </message>
    <message>
        <source>Export &amp;Time-Lapse…</source>
        <translation>タイムラプスを書き出す(&amp;T)…</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 を書き出しました</translation>
    </message>
    <message>
        <source>Painting the time-lapse…</source>
        <translation>タイムラプスを描いています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Enter or a double click puts it down, Escape gives it up</source>
        <translation>Enter またはダブルクリックで確定、Escape で取り消します</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>長方形(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Lasso</source>
        <translation>投げ縄(&amp;L)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy All &amp;Layers</source>
        <translation>すべてのレイヤーをコピー(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>There is no picture to paste</source>
        <translation>貼り付ける画像がありません</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>E&amp;raser</source>
        <translation>消しゴム(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Smudge</source>
        <translation>色混ぜ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>塗りつぶし(&amp;F)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Strokes become the line, polygon, ellipse, arc or arrow they are meant as</source>
        <translation>描線を、意図した直線・多角形・楕円・円弧・矢印に変えます</translation>
    </message>
    <message>
        <source>This layer is hidden: nothing would be seen of it</source>
        <translation>このレイヤーは非表示のため、描いても見えません</translation>
    </message>
    <message>
        <source>There is not enough memory to fill this</source>
        <translation>メモリーが足りず、塗りつぶせません</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反転(&amp;I)</translation>
    </message>
    <message>
        <source>Strokes keep to what is selected; Escape selects nothing</source>
        <translation>ストロークは選択範囲の中だけに描かれます。Escape で選択を解除します</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here as the last step left it</source>
        <translation>グラフィックカードとの接続が一時失われました。画像は最後の操作の後の状態で残っています</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::NewCanvasDialog</name>
    <message>
        <source>New Canvas</source>
        <translation>新規キャンバス</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>幅(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高さ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>背景(&amp;B)</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Takes about %1 of memory.</source>
        <translation>約 %1 のメモリーを使います。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PaletteLibrary</name>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>フォルダー「%1」を作成できませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>「%1」を削除できませんでした: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable palette: %2.</source>
        <translation>「%1」は使用できるパレットではありません: %2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PalettePage</name>
    <message>
        <source>Colours of the palette</source>
        <translation>パレットの色</translation>
    </message>
    <message>
        <source>No colours yet: + adds the present one.</source>
        <translation>まだ色がありません。+ で現在の色を追加します。</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Add the present colour to the palette</source>
        <translation>現在の色をパレットに追加</translation>
    </message>
    <message>
        <source>More to do with palettes</source>
        <translation>パレットに対するその他の操作</translation>
    </message>
    <message>
        <source>&amp;New Palette…</source>
        <translation>新規パレット(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Rename Palette…</source>
        <translation>パレットの名前を変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete Palette…</source>
        <translation>パレットを削除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Import Palettes…</source>
        <translation>パレットをインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation>パレットをエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;name Colour…</source>
        <translation>色の名前を変更(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Remove Colour</source>
        <translation>色を削除(&amp;R)</translation>
    </message>
    <message>
        <source>Rename Colour</source>
        <translation>色の名前を変更</translation>
    </message>
    <message>
        <source>New Palette</source>
        <translation>新規パレット</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>パレットの名前を変更</translation>
    </message>
    <message>
        <source>Delete the palette &quot;%1&quot;?</source>
        <translation>パレット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PictureFile</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>「%1」を開けません: %2。</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>アクセス権がありません</translation>
    </message>
    <message>
        <source>it is not an image of a known kind</source>
        <translation>対応していない画像形式です</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>壊れています</translation>
    </message>
    <message>
        <source>it is damaged (%1)</source>
        <translation>壊れています (%1)</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリー不足です</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetBrowser</name>
    <message>
        <source>Search brushes</source>
        <translation>ブラシを検索</translation>
    </message>
    <message>
        <source>Save the present settings as a new brush</source>
        <translation>現在の設定を新規ブラシとして保存</translation>
    </message>
    <message>
        <source>More to do with the chosen brush</source>
        <translation>選択中のブラシに対するその他の操作</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>%1 – modified</source>
        <translation>%1 – 変更あり</translation>
    </message>
    <message>
        <source>There are no brushes yet: import some by the menu above, or save the present settings as one.</source>
        <translation>まだブラシがありません。上のメニューからインポートするか、現在の設定を新規ブラシとして保存してください。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetChoice</name>
    <message>
        <source>Save as New Brush</source>
        <translation>新規ブラシとして保存</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Replace the brush &quot;%1&quot;?</source>
        <translation>ブラシ「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>It takes the present settings, and what it was is lost.</source>
        <translation>現在の設定で置き換えられ、元の内容は失われます。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Rename Brush</source>
        <translation>ブラシの名前を変更</translation>
    </message>
    <message>
        <source>Delete the brush &quot;%1&quot;?</source>
        <translation>ブラシ「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete the file &quot;%1&quot; with its %2 brushes?</source>
        <translation>ファイル「%1」を、含まれる %2 個のブラシごと削除しますか?</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Of &quot;%1&quot; could not be carried over:
%2</source>
        <translation>「%1」のうち、次のものは引き継げませんでした:
%2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetDelegate</name>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>no preset</source>
        <translation>プリセットではない</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetFilter</name>
    <message>
        <source>No brush is called &quot;%1&quot;: clear the search.</source>
        <translation>「%1」というブラシはありません。検索を消してください。</translation>
    </message>
    <message>
        <source>None of these is called &quot;%1&quot;: clear the search, or show all brushes.</source>
        <translation>この中に「%1」はありません。検索を消すか、すべてのブラシを表示してください。</translation>
    </message>
    <message>
        <source>No favourites yet: a click on the star of a brush makes it one, or * in the list.</source>
        <translation>お気に入りはまだありません。ブラシの星をクリックするか、一覧で * を押してください。</translation>
    </message>
    <message>
        <source>No brush is of this kind: show all brushes.</source>
        <translation>この種類のブラシはありません。すべてのブラシを表示してください。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetKinds</name>
    <message>
        <source>Kind of brushes</source>
        <translation>ブラシの種類</translation>
    </message>
    <message>
        <source>Which brushes are listed</source>
        <translation>表示するブラシ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>お気に入り</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetLibrary</name>
    <message>
        <source>it does not hold this brush</source>
        <translation>このブラシは含まれていません</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>フォルダー「%1」を作成できませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>「%1」の名前を変更できませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>「%1」を削除できませんでした: %2。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>there is no memory for it</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>it holds no brush</source>
        <translation>ブラシが含まれていません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable brush file: %2.</source>
        <translation>「%1」は使用できるブラシファイルではありません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>「%1」に書き込めませんでした: %2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListModel</name>
    <message>
        <source>Every setting at its default</source>
        <translation>すべての設定が初期値</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>「%1」は使用できません: %2</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>作者: %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListView</name>
    <message>
        <source>Brushes</source>
        <translation>ブラシ</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetMenu</name>
    <message>
        <source>Save as &amp;New Brush…</source>
        <translation>新規ブラシとして保存(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Overwrite with Present Settings…</source>
        <translation>現在の設定で上書き(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前を変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>お気に入り(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import Brushes…</source>
        <translation>ブラシをインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>フォルダーを表示(&amp;F)</translation>
    </message>
    <message>
        <source>Presets Set the &amp;Colour</source>
        <translation>プリセットで色も変更(&amp;C)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureCurveEditor</name>
    <message>
        <source>Pressure curve</source>
        <translation>筆圧曲線</translation>
    </message>
    <message>
        <source>Arrows move a point, Ctrl with left and right chooses one, Insert adds one, Delete takes it away</source>
        <translation>矢印キーで点を移動、Ctrl と左右キーで点を選択、Insert で追加、Delete で削除</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureDialog</name>
    <message>
        <source>Pen Pressure</source>
        <translation>筆圧</translation>
    </message>
    <message>
        <source>Clear the &amp;Sheet</source>
        <translation>用紙を消去(&amp;S)</translation>
    </message>
    <message>
        <source>Draw here to try it</source>
        <translation>ここに描いて試せます</translation>
    </message>
    <message>
        <source>So&amp;ft</source>
        <translation>柔らかい(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Linear</source>
        <translation>直線(&amp;L)</translation>
    </message>
    <message>
        <source>Fir&amp;m</source>
        <translation>硬い(&amp;M)</translation>
    </message>
    <message>
        <source>The pen&apos;s %1 % count as %2 %</source>
        <translation>ペンの %1 % を %2 % として扱います</translation>
    </message>
    <message>
        <source>No pen presses</source>
        <translation>ペンが押されていません</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureTester</name>
    <message>
        <source>Sheet to try the pressure on</source>
        <translation>筆圧を試す用紙</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterReader</name>
    <message>
        <source>its layers have too many pixels together</source>
        <translation>レイヤーの合計ピクセル数が多すぎます</translation>
    </message>
    <message>
        <source>it is no OpenRaster picture, or damaged</source>
        <translation>OpenRaster 画像ではないか、壊れています</translation>
    </message>
    <message>
        <source>the picture of its layer &quot;%1&quot; is missing or damaged</source>
        <translation>レイヤー「%1」の画像がないか、壊れています</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリー不足です</translation>
    </message>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>この dabpainter は、OpenRaster に必要な QuaZip なしでビルドされています</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>アーカイブが壊れています</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterWriter</name>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>この dabpainter は、OpenRaster に必要な QuaZip なしでビルドされています</translation>
    </message>
    <message>
        <source>there is no memory for the file</source>
        <translation>ファイルのためのメモリーが足りません</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecentFiles</name>
    <message>
        <source>No picture yet</source>
        <translation>まだ画像はありません</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>一覧を消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecordingSign</name>
    <message>
        <source>Recording</source>
        <translation>記録中</translation>
    </message>
    <message>
        <source>What is painted is recorded: stop it, or export it</source>
        <translation>描いたものを記録しています。停止または書き出しができます</translation>
    </message>
    <message>
        <source>A recording runs</source>
        <translation>記録中です</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SampleStroke</name>
    <message>
        <source>A stroke with the present brush</source>
        <translation>現在のブラシによるストローク</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SelectionEditor</name>
    <message>
        <source>The layer is hidden</source>
        <translation>レイヤーは非表示です</translation>
    </message>
    <message>
        <source>Nothing of this layer is selected</source>
        <translation>このレイヤーでは何も選択されていません</translation>
    </message>
    <message>
        <source>The canvas takes no picture now; the log says why.</source>
        <translation>今はキャンバスに画像を配置できません。理由はログに記録されています。</translation>
    </message>
    <message>
        <source>The layer&apos;s alpha is locked</source>
        <translation>レイヤーの透明部分がロックされています</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SessionRecorder</name>
    <message>
        <source>The recording cannot be written: %1.</source>
        <translation>記録を書き込めません: %1。</translation>
    </message>
    <message>
        <source>The canvas cannot be recorded; the log says why.</source>
        <translation>キャンバスを記録できません。理由はログにあります。</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>何も記録されていません。</translation>
    </message>
    <message>
        <source>The recording could not be written down: %1.</source>
        <translation>記録を保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>「%1」を保存できません: %2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShadeTriangle</name>
    <message>
        <source>Lightness and chroma</source>
        <translation>明度と彩度</translation>
    </message>
    <message>
        <source>Lightness and chroma: drag, or the arrow keys</source>
        <translation>明度と彩度: ドラッグまたは矢印キー</translation>
    </message>
    <message>
        <source>Lightness %1 %, chroma %2</source>
        <translation>明度 %1 %、彩度 %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShortcutsDialog</name>
    <message>
        <source>&amp;Assign</source>
        <translation>割り当て(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No Key</source>
        <translation>キーなし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Usual Key</source>
        <translation>既定のキー(&amp;U)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー割り当て</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>コマンドとキーを検索</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>コマンドとそのキー</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>新しいキー</translation>
    </message>
    <message>
        <source>All &amp;Usual</source>
        <translation>すべて既定(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Take It</source>
        <translation>割り当てを移す(&amp;T)</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;, which would have none then.</source>
        <translation>%1 は「%2」のキーです。割り当てを移すと、そちらのキーはなくなります。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StabiliserControl</name>
    <message>
        <source>Unsteadied</source>
        <translation>補正なし</translation>
    </message>
    <message>
        <source>Averaged</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Pulled string</source>
        <translation>引きひも</translation>
    </message>
    <message>
        <source>What steadies the hand</source>
        <translation>手ぶれ補正の方法</translation>
    </message>
    <message>
        <source>What steadies the hand; each brush remembers its own</source>
        <translation>手ぶれ補正の方法。ブラシごとに記憶されます</translation>
    </message>
    <message>
        <source>How much the hand is steadied</source>
        <translation>手ぶれ補正の強さ</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>終点まで</translation>
    </message>
    <message>
        <source>At its end a line goes on to where the pointer is</source>
        <translation>線の終わりをポインターの位置まで伸ばします</translation>
    </message>
    <message>
        <source>The string is %1 points long</source>
        <translation>ひもの長さは %1 ポイントです</translation>
    </message>
    <message>
        <source>Follows within %1 s</source>
        <translation>%1 秒以内に追従します</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StackReader</name>
    <message>
        <source>Some layers have blend modes that are not known here; they are shown as normal.</source>
        <translation>一部のレイヤーの合成モードは未対応のため、通常として表示します。</translation>
    </message>
    <message>
        <source>a layer lies too far from the picture</source>
        <translation>画像から離れすぎたレイヤーがあります</translation>
    </message>
    <message>
        <source>Groups of layers have come apart, and may look another way.</source>
        <translation>レイヤーのグループが解除されました。見た目が変わることがあります。</translation>
    </message>
    <message>
        <source>its groups lie too deep in each other</source>
        <translation>グループの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>the picture of a layer lies outside of the archive</source>
        <translation>アーカイブの外にあるレイヤー画像があります</translation>
    </message>
    <message>
        <source>it has more than %1 layers</source>
        <translation>レイヤーが %1 枚を超えています</translation>
    </message>
    <message>
        <source>Some of its contents are no layers of pixels, and are left out.</source>
        <translation>ピクセルレイヤーでない内容は除外されました。</translation>
    </message>
    <message>
        <source>its list of layers is damaged (%1)</source>
        <translation>レイヤーの一覧が壊れています (%1)</translation>
    </message>
    <message>
        <source>it has no layers</source>
        <translation>レイヤーがありません</translation>
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
        <translation>タイムラプスのためのメモリがありません。</translation>
    </message>
    <message>
        <source>The recording</source>
        <translation>記録</translation>
    </message>
</context>
</TS>
