<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Dabpainter</source>
        <translation>关于 Dabpainter</translation>
    </message>
    <message>
        <source>Dabpainter %1 paints with natural-media brushes. Whoever reports a fault may add this:</source>
        <translation>Dabpainter %1 以自然画材画笔作画。报告问题时可附上以下内容：</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Painter&apos;s Guide</source>
        <translation>绘画指南</translation>
    </message>
</context>
<context>
    <name>Tables</name>
    <message>
        <source>A ball that skips a little and lays down more ink where it is pressed.</source>
        <translation>圆珠略有跳墨，按压处出墨更多。</translation>
    </message>
    <message>
        <source>A blunt greasy crayon that skips the paper&apos;s pits.</source>
        <translation>钝头油性蜡笔，会掠过纸面的凹坑。</translation>
    </message>
    <message>
        <source>A broad nib held at 45 degrees: thick and thin come of the direction.</source>
        <translation>以 45 度持握的宽笔尖：线条粗细取决于运笔方向。</translation>
    </message>
    <message>
        <source>A drawing pen of one width, whatever the hand does.</source>
        <translation>无论手势如何，线宽始终不变的制图笔。</translation>
    </message>
    <message>
        <source>A fibre pen whose edge frays a little on the paper.</source>
        <translation>纤维笔，边缘在纸上略微起毛。</translation>
    </message>
    <message>
        <source>A fingertip that drags wet paint along.</source>
        <translation>用指尖拖动未干的颜料。</translation>
    </message>
    <message>
        <source>A flat brush with sharp sides for planes of colour, dragging streaks of what it meets.</source>
        <translation>两侧锐利的平头笔，适合铺色块，会带出所遇颜色的条纹。</translation>
    </message>
    <message>
        <source>A flat wash brush with straight ends and a dark rim along both sides.</source>
        <translation>平头晕染笔，两端平直，两侧留有深色边缘。</translation>
    </message>
    <message>
        <source>A flexible steel nib that swells under pressure and runs out in points.</source>
        <translation>富有弹性的钢笔尖，受压变粗，收笔成尖。</translation>
    </message>
    <message>
        <source>A full pointed brush of ink, from a hair to a broad stroke.</source>
        <translation>饱蘸墨汁的尖头毛笔，从细如发丝到宽阔笔画皆可。</translation>
    </message>
    <message>
        <source>A hard square crayon, broad across its edge and thin along it, on laid paper.</source>
        <translation>方形硬质炭精条，用在条纹纸上，横扫宽阔，顺锋纤细。</translation>
    </message>
    <message>
        <source>A hard stick of chalk whose face breaks up over the tooth.</source>
        <translation>硬质粉笔，笔面在纸纹上断续破碎。</translation>
    </message>
    <message>
        <source>A jet with too much air, in drops that stay apart.</source>
        <translation>气量过大的喷流，墨滴彼此分散。</translation>
    </message>
    <message>
        <source>A natural sponge dabbed about, with pores of all sizes.</source>
        <translation>天然海绵拍印，孔隙大小不一。</translation>
    </message>
    <message>
        <source>A pen for the mouse: slow lines are wide and quick ones thin.</source>
        <translation>为鼠标设计的笔：慢则线粗，快则线细。</translation>
    </message>
    <message>
        <source>A pointed round of sable: transparent colour that dries with a dark rim.</source>
        <translation>貂毛尖头圆笔：透明颜色，干后留有深色边缘。</translation>
    </message>
    <message>
        <source>A rounded brush for soft-ended strokes that pick up their neighbours&apos; colour.</source>
        <translation>圆角画笔，笔画两端柔和，会带起邻近的颜色。</translation>
    </message>
    <message>
        <source>A slanted marker: broad one way, thin the other, transparent.</source>
        <translation>斜头马克笔：一个方向宽，另一个方向窄，颜色透明。</translation>
    </message>
    <message>
        <source>A soft dry brush that blurs the border between colours.</source>
        <translation>柔软的干笔，模糊颜色之间的边界。</translation>
    </message>
    <message>
        <source>A soft jet of colour that builds up with every pass.</source>
        <translation>柔和的颜色喷雾，每喷一遍都会叠加。</translation>
    </message>
    <message>
        <source>A soft pencil; tilt it to shade with the side of its lead.</source>
        <translation>软铅笔；倾斜时可用铅芯侧面涂阴影。</translation>
    </message>
    <message>
        <source>A steel blade that lays a film of paint and scrapes the colours below along.</source>
        <translation>钢制刮刀，铺下一层颜料并刮带下方的颜色。</translation>
    </message>
    <message>
        <source>A stick of charcoal: dusty when light, black where it is pressed.</source>
        <translation>炭条：轻画如粉尘，重压则浓黑。</translation>
    </message>
    <message>
        <source>A stiff brush with little paint, whose hairs each leave a scratch.</source>
        <translation>颜料很少的硬毛笔，每根笔毛各留一道划痕。</translation>
    </message>
    <message>
        <source>A thin lead that is always sharp, for lines of one width.</source>
        <translation>始终尖细的铅芯，画出粗细一致的线条。</translation>
    </message>
    <message>
        <source>A transparent marker that darkens where strokes cross.</source>
        <translation>透明马克笔，笔画交叉处变深。</translation>
    </message>
    <message>
        <source>A well sharpened HB pencil on drawing paper.</source>
        <translation>削尖的 HB 铅笔，画在素描纸上。</translation>
    </message>
    <message>
        <source>A wide and faint mist for shadows and glows.</source>
        <translation>宽而淡的雾状喷色，适合阴影和光晕。</translation>
    </message>
    <message>
        <source>Acrylic</source>
        <translation>丙烯</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>喷枪</translation>
    </message>
    <message>
        <source>All around</source>
        <translation>四周散布</translation>
    </message>
    <message>
        <source>Amount of own colour on a smudge brush; 0 only moves what is there.</source>
        <translation>涂抹画笔自身颜色的用量；0 表示只移动已有颜色。</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Angle influences</source>
        <translation>角度影响</translation>
    </message>
    <message>
        <source>Angle jitter</source>
        <translation>角度抖动</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>保持原样</translation>
    </message>
    <message>
        <source>At least three pixels</source>
        <translation>至少三像素</translation>
    </message>
    <message>
        <source>Autumn Leaves</source>
        <translation>秋叶</translation>
    </message>
    <message>
        <source>Ballpoint</source>
        <translation>圆珠笔</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>背后</translation>
    </message>
    <message>
        <source>Bleeding Wash</source>
        <translation>渗色晕染</translation>
    </message>
    <message>
        <source>Blend fragment shader string</source>
        <translation>混合片段着色器字符串</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>混合模式</translation>
    </message>
    <message>
        <source>Blur of the live preview brush when its stroke is placed, in preview pixels.</source>
        <translation>实时预览画笔的笔画落定时的模糊程度，以预览像素为单位。</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
    </message>
    <message>
        <source>Brightness jitter</source>
        <translation>亮度抖动</translation>
    </message>
    <message>
        <source>Bristles</source>
        <translation>笔毛</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Brush Pen</source>
        <translation>毛笔</translation>
    </message>
    <message>
        <source>Brush colour; its alpha is not used, opacity and flow are.</source>
        <translation>画笔颜色；不使用其 Alpha，而使用不透明度和流量。</translation>
    </message>
    <message>
        <source>Brush tip: the tip images, or one that is drawn.</source>
        <translation>画笔笔尖：使用笔尖图像，或由程序绘制。</translation>
    </message>
    <message>
        <source>By how much</source>
        <translation>关联量</translation>
    </message>
    <message>
        <source>Calligraphy Nib</source>
        <translation>书法平头笔</translation>
    </message>
    <message>
        <source>Canvas colour</source>
        <translation>画布颜色</translation>
    </message>
    <message>
        <source>Chalk</source>
        <translation>粉笔</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>炭笔</translation>
    </message>
    <message>
        <source>Chisel Marker</source>
        <translation>斜头马克笔</translation>
    </message>
    <message>
        <source>Clumps of hairs as apart as a comb&apos;s teeth, for fur, grass and grain of wood.</source>
        <translation>像梳齿一样分开的簇簇笔毛，适合毛皮、草和木纹。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Colour dropped into wet paper, which runs out in fingers as it likes.</source>
        <translation>颜色滴入湿颜料，随意向外渗成指状。</translation>
    </message>
    <message>
        <source>Colour influences</source>
        <translation>颜色影响</translation>
    </message>
    <message>
        <source>Colour jitter</source>
        <translation>颜色抖动</translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation>彩色纸屑</translation>
    </message>
    <message>
        <source>Conte</source>
        <translation>炭精条</translation>
    </message>
    <message>
        <source>Dabs</source>
        <translation>印迹</translation>
    </message>
    <message>
        <source>Dabs at each place of the second line, whole; at most 64 are drawn.</source>
        <translation>第二线条每处的印迹数，取整数；最多绘制 64 个。</translation>
    </message>
    <message>
        <source>Dabs at each place, whole; at most 64 are drawn.</source>
        <translation>每处的印迹数，取整数；最多绘制 64 个。</translation>
    </message>
    <message>
        <source>Dabs influences</source>
        <translation>印迹数影响</translation>
    </message>
    <message>
        <source>Dabs jitter</source>
        <translation>印迹数抖动</translation>
    </message>
    <message>
        <source>Dabs lie upright on whole pixels and are whole pixels large, so that square tips have no soft edge.</source>
        <translation>印迹端正地对齐整像素，且大小为整像素，使方形笔尖没有柔边。</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>变暗</translation>
    </message>
    <message>
        <source>Depth influences</source>
        <translation>深度影响</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Distance from dab to dab as a fraction of the dab&apos;s size.</source>
        <translation>印迹之间的距离，以印迹大小的比例表示。</translation>
    </message>
    <message>
        <source>Distance from dab to dab of the second line as a fraction of the dab&apos;s size.</source>
        <translation>第二线条印迹之间的距离，以印迹大小的比例表示。</translation>
    </message>
    <message>
        <source>Distance per pointer sample, in buffer pixels, that counts as fully fast.</source>
        <translation>每个指针采样点间的距离达到此值即视为全速，以缓冲像素为单位。</translation>
    </message>
    <message>
        <source>Divides the points handed to shape recognition.</source>
        <translation>传给形状识别的点坐标除以此值。</translation>
    </message>
    <message>
        <source>Draws a second line with a tip of its own and paints only where both are.</source>
        <translation>用单独的笔尖绘制第二线条，只在两者重叠处上色。</translation>
    </message>
    <message>
        <source>Draws curves through the pointer samples instead of straight lines.</source>
        <translation>在指针采样点之间绘制曲线，而非直线。</translation>
    </message>
    <message>
        <source>Dry Bristle</source>
        <translation>干硬毛笔</translation>
    </message>
    <message>
        <source>Edge of a generated tip: 0 soft, 1 hard.</source>
        <translation>程序生成的笔尖的边缘：0 为柔，1 为硬。</translation>
    </message>
    <message>
        <source>Edge width</source>
        <translation>湿边宽度</translation>
    </message>
    <message>
        <source>End size</source>
        <translation>末端大小</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>Even spacing</source>
        <translation>均匀间距</translation>
    </message>
    <message>
        <source>Fallen leaves of four kinds, between two colours.</source>
        <translation>四种落叶，颜色介于两色之间。</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>扇形笔</translation>
    </message>
    <message>
        <source>Fast from</source>
        <translation>快速阈值</translation>
    </message>
    <message>
        <source>Felt Tip</source>
        <translation>纤维笔</translation>
    </message>
    <message>
        <source>Filled outline</source>
        <translation>填充轮廓</translation>
    </message>
    <message>
        <source>Fills what the pen goes around while it goes.</source>
        <translation>边画边填充笔尖所围的区域。</translation>
    </message>
    <message>
        <source>Flat Watercolour</source>
        <translation>平头水彩</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip upright</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Flow influences</source>
        <translation>流量影响</translation>
    </message>
    <message>
        <source>Flow jitter</source>
        <translation>流量抖动</translation>
    </message>
    <message>
        <source>Follow size by</source>
        <translation>大小关联</translation>
    </message>
    <message>
        <source>Follow stroke</source>
        <translation>跟随笔画</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>自由</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Gouache Dry</source>
        <translation>水粉干笔</translation>
    </message>
    <message>
        <source>Grainy Airbrush</source>
        <translation>颗粒喷枪</translation>
    </message>
    <message>
        <source>Hairs without paint that draw one colour into the other in fine streaks.</source>
        <translation>不蘸颜料的笔毛，以细条纹将一种颜色带入另一种。</translation>
    </message>
    <message>
        <source>Hard Eraser</source>
        <translation>硬橡皮擦</translation>
    </message>
    <message>
        <source>Hard Pixel</source>
        <translation>硬边像素</translation>
    </message>
    <message>
        <source>Hardness</source>
        <translation>硬度</translation>
    </message>
    <message>
        <source>Height of the dab relative to its width.</source>
        <translation>印迹高度相对于宽度的比例。</translation>
    </message>
    <message>
        <source>How a stroke meets the canvas; any other number, as normal.</source>
        <translation>笔画与画布的混合方式；其他数值视为正常。</translation>
    </message>
    <message>
        <source>How dabs thinner than 3 pixels are drawn: as they are, 3 pixels large, paler by as much as they are thinner, or both.</source>
        <translation>小于 3 像素的印迹的绘制方式：保持原样、画成 3 像素、按变细的程度减淡，或两者兼用。</translation>
    </message>
    <message>
        <source>How far dabs scatter, in dab sizes.</source>
        <translation>印迹散布的距离，以印迹大小为单位。</translation>
    </message>
    <message>
        <source>How far that rim reaches into the stroke, in buffer pixels.</source>
        <translation>湿边向笔画内部延伸的距离，以缓冲像素为单位。</translation>
    </message>
    <message>
        <source>How far the bristles of a smudge brush carry colour along the stroke, each its own: 0 what lay under the dab before alone, 1 what they hold, at first loadQuantity of the brush colour, taking up more the wetter.</source>
        <translation>涂抹画笔的笔毛沿笔画各自携带颜色的程度：0 仅取上一印迹下方的颜色，1 仅取笔毛所含的颜色，起初含有 loadQuantity 份画笔颜色，湿度越高吸取越多。</translation>
    </message>
    <message>
        <source>How far the paper&apos;s heights decide: light dabs catch its tops alone, firm ones and full flow fill its valleys; 0 not at all.</source>
        <translation>纸纹起伏的作用程度：轻的印迹只触及凸起，用力且流量充足时填满凹处；0 表示不起作用。</translation>
    </message>
    <message>
        <source>How far the second line&apos;s dabs scatter, in dab sizes.</source>
        <translation>第二线条印迹散布的距离，以印迹大小为单位。</translation>
    </message>
    <message>
        <source>How much paint one dab lays down; dabs build up where they overlap.</source>
        <translation>每个印迹的颜料量；印迹重叠处会叠加。</translation>
    </message>
    <message>
        <source>How much paler the inside of a stroke dries than its rim, as watercolour does: 0 not at all, 1 until nothing is left of it.</source>
        <translation>笔画内部干后比边缘淡多少，如同水彩：0 表示不变淡，1 表示内部完全消失。</translation>
    </message>
    <message>
        <source>How quickly the measured speed follows the pointer.</source>
        <translation>测得的速度跟随指针变化的快慢。</translation>
    </message>
    <message>
        <source>How the second line&apos;s size follows radius; any other number, not at all.</source>
        <translation>第二线条的大小如何跟随 radius；其他数值表示不跟随。</translation>
    </message>
    <message>
        <source>Hue jitter</source>
        <translation>色相抖动</translation>
    </message>
    <message>
        <source>Image influences</source>
        <translation>图像影响</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on how firm a dab is to the paper, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对印迹贴纸力度的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on that number, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对该数量的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the flow, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对流量的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the mixing, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对混色的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the rotation, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对旋转的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the roundness, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对圆度的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the scatter, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对散布的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on the size, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对大小的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Influence of pressure, altitude and speed on which tip image is picked, -1 to 1 each.</source>
        <translation>压力、倾斜和速度对选用哪张笔尖图像的影响，各为 -1 到 1。</translation>
    </message>
    <message>
        <source>Ink Pen</source>
        <translation>蘸水笔</translation>
    </message>
    <message>
        <source>Ink Spatter</source>
        <translation>墨点飞溅</translation>
    </message>
    <message>
        <source>Ink flicked off a brush, in blots that burst and drops that fly.</source>
        <translation>从笔上甩出的墨，墨渍迸裂，墨滴飞溅。</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Largest size, as a fraction of radius.</source>
        <translation>最大的大小，以 radius 的比例表示。</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>最小圆度</translation>
    </message>
    <message>
        <source>Least flow</source>
        <translation>最小流量</translation>
    </message>
    <message>
        <source>Length of that ramp, in dabs.</source>
        <translation>渐增的长度，以印迹数为单位。</translation>
    </message>
    <message>
        <source>Length of the start taper, in buffer pixels.</source>
        <translation>起笔渐变的长度，以缓冲像素为单位。</translation>
    </message>
    <message>
        <source>Lets the paper through more, or less, all over.</source>
        <translation>整体上让纸纹透过更多或更少的颜料。</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>变亮</translation>
    </message>
    <message>
        <source>Live Fill</source>
        <translation>即时填充</translation>
    </message>
    <message>
        <source>Lower bound of the influenced flow, as a fraction of flow.</source>
        <translation>受影响后流量的下限，以流量的比例表示。</translation>
    </message>
    <message>
        <source>Lower bound of the roundness.</source>
        <translation>圆度的下限。</translation>
    </message>
    <message>
        <source>Meadow Grass</source>
        <translation>草地</translation>
    </message>
    <message>
        <source>Mechanical Pencil</source>
        <translation>自动铅笔</translation>
    </message>
    <message>
        <source>Mirrors every other dab left to right, at random.</source>
        <translation>随机将一半的印迹左右镜像。</translation>
    </message>
    <message>
        <source>Mirrors every other dab top to bottom, at random.</source>
        <translation>随机将一半的印迹上下镜像。</translation>
    </message>
    <message>
        <source>Mirrors the tip left to right.</source>
        <translation>将笔尖左右镜像。</translation>
    </message>
    <message>
        <source>Mirrors the tip top to bottom.</source>
        <translation>将笔尖上下镜像。</translation>
    </message>
    <message>
        <source>Most flow</source>
        <translation>最大流量</translation>
    </message>
    <message>
        <source>Much water and little pigment, in pools that dry unevenly and leave a rim.</source>
        <translation>水多色少，积成水洼，干得不均匀并留下边缘。</translation>
    </message>
    <message>
        <source>Multicolour</source>
        <translation>多彩</translation>
    </message>
    <message>
        <source>Multicolour: the tip&apos;s own colours paint (the brush colour where it is black), each dab varied by the hue, saturation and brightness jitters.</source>
        <translation>多彩：以笔尖自身的颜色绘制（黑色处使用画笔颜色），每个印迹按色相、饱和度和亮度抖动变化。</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>正片叠底</translation>
    </message>
    <message>
        <source>No smudging</source>
        <translation>不涂抹</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Number of dabs after which the paint has run out; 0 or 1 for never.</source>
        <translation>颜料耗尽前的印迹数；0 或 1 表示永不耗尽。</translation>
    </message>
    <message>
        <source>Oil Filbert</source>
        <translation>油画榛形笔</translation>
    </message>
    <message>
        <source>Oil Flat</source>
        <translation>油画平头笔</translation>
    </message>
    <message>
        <source>Oil Impasto</source>
        <translation>油画厚涂</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity of a stroke as a whole, however often it crosses itself.</source>
        <translation>整个笔画的不透明度，无论自身交叉多少次。</translation>
    </message>
    <message>
        <source>Opaque matt paint, a little uneven in tone, that breaks up on rough paper.</source>
        <translation>不透明的哑光颜料，色调略有不匀，在粗糙的纸上断续破碎。</translation>
    </message>
    <message>
        <source>Outline blur</source>
        <translation>轮廓模糊</translation>
    </message>
    <message>
        <source>Own colour</source>
        <translation>自身颜色</translation>
    </message>
    <message>
        <source>Paint from a can: coarse drops all over the jet, more of them under pressure.</source>
        <translation>罐装喷漆：整个喷流布满粗颗粒，用力时更多。</translation>
    </message>
    <message>
        <source>Paints through the paper given as the mask image.</source>
        <translation>透过蒙版图像给出的纸纹上色。</translation>
    </message>
    <message>
        <source>Palette Knife</source>
        <translation>调色刀</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸纹</translation>
    </message>
    <message>
        <source>Paper brightness</source>
        <translation>纸纹亮度</translation>
    </message>
    <message>
        <source>Paper contrast</source>
        <translation>纸纹对比度</translation>
    </message>
    <message>
        <source>Paper depth</source>
        <translation>纸纹深度</translation>
    </message>
    <message>
        <source>Paper scale</source>
        <translation>纸纹缩放</translation>
    </message>
    <message>
        <source>Paper scraps of all colours, thrown wide.</source>
        <translation>各色纸屑，大范围抛洒。</translation>
    </message>
    <message>
        <source>Paper, repeated over the canvas: white lets paint through, black and transparent hold it back.</source>
        <translation>在画布上平铺的纸纹：白色透过颜料，黑色和透明处阻挡颜料。</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>Pencil 2B</source>
        <translation>2B 铅笔</translation>
    </message>
    <message>
        <source>Picks one of several tip images at random for each dab.</source>
        <translation>为每个印迹从多张笔尖图像中随机选取一张。</translation>
    </message>
    <message>
        <source>Pixel aligned</source>
        <translation>像素对齐</translation>
    </message>
    <message>
        <source>Plastic paint from a bristle brush: covers at once and keeps the hairs&apos; furrows.</source>
        <translation>硬毛笔上的丙烯颜料：一笔即可覆盖，并保留笔毛的沟痕。</translation>
    </message>
    <message>
        <source>Pointer samples gathered before a segment is drawn: higher is steadier and lags more.</source>
        <translation>绘制一段之前收集的指针采样点数：越高越稳，延迟也越大。</translation>
    </message>
    <message>
        <source>Puts the shape that a stroke was meant as in its place, or nothing; brush types 3 and 4 draw plain dabs meanwhile.</source>
        <translation>将笔画换成其想要表达的形状，无法识别则不留任何内容；此时画笔类型 3 和 4 绘制普通印迹。</translation>
    </message>
    <message>
        <source>Rake</source>
        <translation>梳齿笔</translation>
    </message>
    <message>
        <source>Ramp length</source>
        <translation>渐增长度</translation>
    </message>
    <message>
        <source>Ramp up</source>
        <translation>渐增</translation>
    </message>
    <message>
        <source>Ramps the mixed amount up over a smudge stroke&apos;s first dabs.</source>
        <translation>在涂抹笔画的最初几个印迹中逐渐增加混色量。</translation>
    </message>
    <message>
        <source>Random across</source>
        <translation>随机水平翻转</translation>
    </message>
    <message>
        <source>Random image</source>
        <translation>随机图像</translation>
    </message>
    <message>
        <source>Random mixing of each dab toward the secondary colour, 0 to 1.</source>
        <translation>每个印迹随机向第二颜色混合的程度，0 到 1。</translation>
    </message>
    <message>
        <source>Random rotation of each dab, 0 to 1 for up to half a turn either way.</source>
        <translation>每个印迹的随机旋转，0 到 1，最大为向任一方向旋转半圈。</translation>
    </message>
    <message>
        <source>Random shrinking of dabs, 0 to 1.</source>
        <translation>印迹随机缩小的程度，0 到 1。</translation>
    </message>
    <message>
        <source>Random start</source>
        <translation>随机起始</translation>
    </message>
    <message>
        <source>Random upright</source>
        <translation>随机垂直翻转</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s brightness, 0 to 1.</source>
        <translation>每个印迹亮度的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s hue, 0 to 1.</source>
        <translation>每个印迹色相的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Random variation of each dab&apos;s saturation, 0 to 1.</source>
        <translation>每个印迹饱和度的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Random variation of that number, 0 to 1.</source>
        <translation>该数量的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Random variation of the flow, 0 to 1.</source>
        <translation>流量的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Random variation of the roundness, 0 to 1.</source>
        <translation>圆度的随机变化，0 到 1。</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>Recog point scale</source>
        <translation>识别点缩放</translation>
    </message>
    <message>
        <source>Recogition</source>
        <translation>识别</translation>
    </message>
    <message>
        <source>Recognition</source>
        <translation>形状识别</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>圆环</translation>
    </message>
    <message>
        <source>Rotation of the tip in radians, counter-clockwise.</source>
        <translation>笔尖的旋转角度，以弧度表示，逆时针方向。</translation>
    </message>
    <message>
        <source>Round Marker</source>
        <translation>圆头马克笔</translation>
    </message>
    <message>
        <source>Round Watercolour</source>
        <translation>圆头水彩</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>圆角矩形</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>圆度</translation>
    </message>
    <message>
        <source>Roundness influences</source>
        <translation>圆度影响</translation>
    </message>
    <message>
        <source>Roundness jitter</source>
        <translation>圆度抖动</translation>
    </message>
    <message>
        <source>Rubs out all, to a clean edge.</source>
        <translation>全部擦净，边缘整齐。</translation>
    </message>
    <message>
        <source>Runs dry after</source>
        <translation>耗尽长度</translation>
    </message>
    <message>
        <source>Saturation jitter</source>
        <translation>饱和度抖动</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>散布</translation>
    </message>
    <message>
        <source>Scatter influences</source>
        <translation>散布影响</translation>
    </message>
    <message>
        <source>Scatters dabs all around instead of only across the stroke.</source>
        <translation>向四周散布印迹，而不只在笔画两侧。</translation>
    </message>
    <message>
        <source>Scatters the second line&apos;s dabs all around instead of only across the stroke.</source>
        <translation>向四周散布第二线条的印迹，而不只在笔画两侧。</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>Second line</source>
        <translation>第二线条</translation>
    </message>
    <message>
        <source>Secondary colour, toward which the colour jitter mixes.</source>
        <translation>第二颜色，颜色抖动会向它混合。</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Size at the start of the stroke&apos;s taper, as a fraction of radius; 0 for no taper.</source>
        <translation>起笔渐变起点的大小，以 radius 的比例表示；0 表示无渐变。</translation>
    </message>
    <message>
        <source>Size at the very end of the stroke, as a fraction of radius; 0 for no taper.</source>
        <translation>笔画最末端的大小，以 radius 的比例表示；0 表示无渐变。</translation>
    </message>
    <message>
        <source>Size influences</source>
        <translation>大小影响</translation>
    </message>
    <message>
        <source>Size jitter</source>
        <translation>大小抖动</translation>
    </message>
    <message>
        <source>Size of a full dab across, in buffer pixels.</source>
        <translation>完整印迹的直径，以缓冲像素为单位。</translation>
    </message>
    <message>
        <source>Size of one paper tile on the canvas, relative to the mask image.</source>
        <translation>画布上一块纸纹的大小，相对于蒙版图像。</translation>
    </message>
    <message>
        <source>Size of the second line&apos;s dabs, in buffer pixels.</source>
        <translation>第二线条印迹的大小，以缓冲像素为单位。</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Smallest size, as a fraction of radius. Without influences dabs are drawn at the middle of smallest and largest.</source>
        <translation>最小的大小，以 radius 的比例表示。没有影响时，印迹按最小与最大的中间值绘制。</translation>
    </message>
    <message>
        <source>Smooth curves</source>
        <translation>平滑曲线</translation>
    </message>
    <message>
        <source>Smudge</source>
        <translation>涂抹</translation>
    </message>
    <message>
        <source>Smudge Finger</source>
        <translation>手指涂抹</translation>
    </message>
    <message>
        <source>Soft Airbrush</source>
        <translation>柔和喷枪</translation>
    </message>
    <message>
        <source>Soft Blender</source>
        <translation>柔和混色笔</translation>
    </message>
    <message>
        <source>Soft Eraser</source>
        <translation>软橡皮擦</translation>
    </message>
    <message>
        <source>Soft Pastel</source>
        <translation>软色粉</translation>
    </message>
    <message>
        <source>Soft disc</source>
        <translation>柔边圆</translation>
    </message>
    <message>
        <source>Soft pastel: powder that fills the tooth and blooms under pressure.</source>
        <translation>软色粉：粉末填入纸纹，受压时晕开。</translation>
    </message>
    <message>
        <source>Source of one of the blend programs, which selects its blend type.</source>
        <translation>某个混合程序的源代码，用于选择其混合类型。</translation>
    </message>
    <message>
        <source>Spaces dabs evenly along the stroke; off, every pointer sample gives one dab.</source>
        <translation>沿笔画均匀排列印迹；关闭时，每个指针采样点画一个印迹。</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Speed Pen</source>
        <translation>速度笔</translation>
    </message>
    <message>
        <source>Speed response</source>
        <translation>速度响应</translation>
    </message>
    <message>
        <source>Sponge</source>
        <translation>海绵</translation>
    </message>
    <message>
        <source>Spray Can</source>
        <translation>喷漆罐</translation>
    </message>
    <message>
        <source>Start length</source>
        <translation>起始长度</translation>
    </message>
    <message>
        <source>Start size</source>
        <translation>起始大小</translation>
    </message>
    <message>
        <source>Steadying</source>
        <translation>防抖</translation>
    </message>
    <message>
        <source>Steepness of the paper&apos;s heights: above 1 its grain has harder edges, 0 is smooth.</source>
        <translation>纸纹起伏的陡峭程度：大于 1 时颗粒边缘更硬，0 为平滑。</translation>
    </message>
    <message>
        <source>Switches off the smudge behaviour of brush type 3.</source>
        <translation>关闭画笔类型 3 的涂抹效果。</translation>
    </message>
    <message>
        <source>Takes a little away with each pass, without an edge.</source>
        <translation>每擦一遍去掉一点，不留边缘。</translation>
    </message>
    <message>
        <source>Technical Pen</source>
        <translation>针管笔</translation>
    </message>
    <message>
        <source>Textured Gouache</source>
        <translation>肌理水粉</translation>
    </message>
    <message>
        <source>That difference in buffer pixels, or that ratio.</source>
        <translation>上述差值（缓冲像素）或上述比例。</translation>
    </message>
    <message>
        <source>The rest of the paint on a brush: broken strokes of single hairs over rough paper.</source>
        <translation>笔上残余的颜料：单根笔毛在粗糙纸面上的断续笔画。</translation>
    </message>
    <message>
        <source>Thick paint from a hog&apos;s hair brush, which mixes with what is wet below it.</source>
        <translation>猪鬃笔上的厚颜料，与下方未干的颜料混合。</translation>
    </message>
    <message>
        <source>Thickness of the ring tip in pixels, or width to height of the rectangle tip.</source>
        <translation>圆环笔尖的粗细（像素），或矩形笔尖的宽高比。</translation>
    </message>
    <message>
        <source>Thin hairs spread wide, for foliage, fur and hair.</source>
        <translation>散得很开的细毛，适合树叶、毛皮和头发。</translation>
    </message>
    <message>
        <source>Thin lines</source>
        <translation>细线</translation>
    </message>
    <message>
        <source>Thinned flow</source>
        <translation>减淡流量</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>笔尖</translation>
    </message>
    <message>
        <source>Tip image</source>
        <translation>笔尖图像</translation>
    </message>
    <message>
        <source>Tip image of the second line.</source>
        <translation>第二线条的笔尖图像。</translation>
    </message>
    <message>
        <source>Tip images</source>
        <translation>笔尖图像</translation>
    </message>
    <message>
        <source>Tip images of texture type 0, up to 16: alpha is the shape; own colours show in multicolour mode.</source>
        <translation>纹理类型 0 的笔尖图像，最多 16 张：Alpha 为形状；自身颜色在多彩模式下显示。</translation>
    </message>
    <message>
        <source>Tip proportion</source>
        <translation>笔尖比例</translation>
    </message>
    <message>
        <source>True Blender</source>
        <translation>纯混色笔</translation>
    </message>
    <message>
        <source>Tufts of grass that stand upright along the stroke.</source>
        <translation>沿笔画直立生长的草丛。</translation>
    </message>
    <message>
        <source>Turns the tip by a random angle at the start of every stroke.</source>
        <translation>每一笔开始时将笔尖旋转一个随机角度。</translation>
    </message>
    <message>
        <source>Turns the tip into the direction of the stroke.</source>
        <translation>将笔尖转向笔画的方向。</translation>
    </message>
    <message>
        <source>Upper bound of the influenced flow, as a fraction of flow.</source>
        <translation>受影响后流量的上限，以流量的比例表示。</translation>
    </message>
    <message>
        <source>Use paper</source>
        <translation>使用纸纹</translation>
    </message>
    <message>
        <source>Watery Wash</source>
        <translation>水润晕染</translation>
    </message>
    <message>
        <source>Wax Crayon</source>
        <translation>蜡笔</translation>
    </message>
    <message>
        <source>Wet edge</source>
        <translation>湿边</translation>
    </message>
    <message>
        <source>Wetness</source>
        <translation>湿度</translation>
    </message>
    <message>
        <source>Wetness of a smudge brush: how much of the canvas colour that it meets is taken along, 0 none to 1 all.</source>
        <translation>涂抹画笔的湿度：带走多少所遇的画布颜色，0 为不带走，1 为全部。</translation>
    </message>
    <message>
        <source>What a smudge brush lays down: 0 its own colour alone, 1 canvas colour alone.</source>
        <translation>涂抹画笔涂下的颜色：0 仅为自身颜色，1 仅为画布颜色。</translation>
    </message>
    <message>
        <source>What a stroke becomes: dabs, dabs that smudge, or a filled outline, shown live; any other number, dabs.</source>
        <translation>笔画的形式：印迹、涂抹的印迹，或实时显示的填充轮廓；其他数值为印迹。</translation>
    </message>
    <message>
        <source>Whole pixels without a soft edge, for pixel art and masks.</source>
        <translation>没有柔边的整像素，适合像素画和蒙版。</translation>
    </message>
    <message>
        <source>acrylic</source>
        <translation>丙烯</translation>
    </message>
    <message>
        <source>airbrush</source>
        <translation>喷枪</translation>
    </message>
    <message>
        <source>blender</source>
        <translation>混色</translation>
    </message>
    <message>
        <source>chalk</source>
        <translation>粉笔</translation>
    </message>
    <message>
        <source>charcoal</source>
        <translation>炭笔</translation>
    </message>
    <message>
        <source>crayon</source>
        <translation>蜡笔</translation>
    </message>
    <message>
        <source>dry</source>
        <translation>干</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>gouache</source>
        <translation>水粉</translation>
    </message>
    <message>
        <source>ink</source>
        <translation>墨水</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>马克笔</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>油画</translation>
    </message>
    <message>
        <source>pastel</source>
        <translation>色粉</translation>
    </message>
    <message>
        <source>pencil</source>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>smudge</source>
        <translation>涂抹</translation>
    </message>
    <message>
        <source>spray</source>
        <translation>喷溅</translation>
    </message>
    <message>
        <source>stamp</source>
        <translation>图章</translation>
    </message>
    <message>
        <source>tilt</source>
        <translation>倾斜</translation>
    </message>
    <message>
        <source>watercolour</source>
        <translation>水彩</translation>
    </message>
    <message>
        <source>wet</source>
        <translation>湿</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter</name>
    <message>
        <source>a canvas is at least 1 x 1 pixel large</source>
        <translation>画布至少为 1 × 1 像素</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a side has at most %3</source>
        <translation>%1 × %2 像素过大：每边最多 %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too large: a canvas has at most %3 million</source>
        <translation>%1 × %2 像素过大：画布最多 %3 百万像素</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>无法保存“%1”：%2。</translation>
    </message>
    <message>
        <source>the canvas cannot be read</source>
        <translation>无法读取画布</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>图像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>“%1”有未保存的更改。</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>要保存吗？</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 图像 (*.png)</translation>
    </message>
    <message>
        <source>Export Brush</source>
        <translation>导出画笔</translation>
    </message>
    <message>
        <source>Brush (*.xbf)</source>
        <translation>画笔 (*.xbf)</translation>
    </message>
    <message>
        <source>Import Brushes</source>
        <translation>导入画笔</translation>
    </message>
    <message>
        <source>Brushes (*.xbf %1)</source>
        <translation>画笔 (*.xbf %1)</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>There is nothing to paint with; the log says what is missing.</source>
        <translation>没有可用于绘画的渲染方式；日志中说明了缺少什么。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>it does not begin with &quot;GIMP Palette&quot;</source>
        <translation>开头不是“GIMP Palette”</translation>
    </message>
    <message>
        <source>line %1 is no colour of three numbers up to 255</source>
        <translation>第 %1 行不是由三个不超过 255 的数字组成的颜色</translation>
    </message>
    <message>
        <source>it has more than %1 colours</source>
        <translation>颜色超过 %1 种</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had here.</source>
        <translation>此处无法提供 %1 × %2 像素的画布。</translation>
    </message>
    <message>
        <source>no picture is written as %1; the kinds are %2</source>
        <translation>无法将图片写为 %1；可用的类型有 %2</translation>
    </message>
    <message>
        <source>This kind of file has no layers.</source>
        <translation>此类文件没有图层。</translation>
    </message>
    <message>
        <source>This kind of file cannot be seen through.</source>
        <translation>此类文件不支持透明。</translation>
    </message>
    <message>
        <source>It shows all of them together. They stay here as long as this picture is open, and an OpenRaster file keeps them.</source>
        <translation>文件中会显示合并后的所有图层。只要此图片保持打开，图层就会保留在这里；OpenRaster 文件可保留图层。</translation>
    </message>
    <message>
        <source>What is transparent is filled with the paper&apos;s colour. A PNG file keeps it.</source>
        <translation>透明部分会填充为纸张颜色。PNG 文件可保留透明。</translation>
    </message>
    <message>
        <source>Save Flattened</source>
        <translation>合并后保存</translation>
    </message>
    <message>
        <source>Save Filled</source>
        <translation>填充后保存</translation>
    </message>
    <message>
        <source>Save as PNG…</source>
        <translation>另存为 PNG…</translation>
    </message>
    <message>
        <source>Save as OpenRaster…</source>
        <translation>另存为 OpenRaster…</translation>
    </message>
    <message>
        <source>OpenRaster, with layers (*.ora)</source>
        <translation>OpenRaster，含图层 (*.ora)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>JPEG 图像 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP image, lossless (*.webp)</source>
        <translation>WebP 图像，无损 (*.webp)</translation>
    </message>
    <message>
        <source>Other images (%1)</source>
        <translation>其他图像 (%1)</translation>
    </message>
    <message>
        <source>Import Palettes</source>
        <translation>导入调色板</translation>
    </message>
    <message>
        <source>GIMP palettes (*.gpl)</source>
        <translation>GIMP 调色板 (*.gpl)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>导出调色板</translation>
    </message>
    <message>
        <source>GIMP palette (*.gpl)</source>
        <translation>GIMP 调色板 (*.gpl)</translation>
    </message>
    <message>
        <source>Export Recording</source>
        <translation>导出记录</translation>
    </message>
    <message>
        <source>Recording (*.jsonl)</source>
        <translation>记录 (*.jsonl)</translation>
    </message>
    <message>
        <source>Export Time-Lapse</source>
        <translation>导出延时动画</translation>
    </message>
    <message>
        <source>Animated WebP (*.webp)</source>
        <translation>WebP 动画 (*.webp)</translation>
    </message>
    <message>
        <source>Folder of pictures (*)</source>
        <translation>图片文件夹 (*)</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 副本 %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Autosave</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushBar</name>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>Brush size and opacity</source>
        <translation>画笔大小和不透明度</translation>
    </message>
    <message>
        <source>Size of the brush, by every drag, wheel or arrow key the same part of it</source>
        <translation>画笔大小；每次拖动、滚轮或方向键均按相同比例改变</translation>
    </message>
    <message>
        <source>Opacity of each stroke</source>
        <translation>每一笔的不透明度</translation>
    </message>
    <message>
        <source>How much colours may differ that a fill takes for one</source>
        <translation>填充时视为同一颜色的差异范围</translation>
    </message>
    <message>
        <source>A double click, F2 or Enter types the number</source>
        <translation>双击、按 F2 或 Enter 可输入数值</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushPanel</name>
    <message>
        <source>Search settings</source>
        <translation>搜索设置</translation>
    </message>
    <message>
        <source>Reset to preset</source>
        <translation>恢复为预设</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Gives every brush setting what the chosen brush has</source>
        <translation>将所有画笔设置恢复为所选画笔的值</translation>
    </message>
    <message>
        <source>Gives every brush setting its default</source>
        <translation>将所有画笔设置恢复为默认值</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>交换颜色 (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I)</source>
        <translation>从画布拾取颜色 (I)</translation>
    </message>
    <message>
        <source>No setting is called so.</source>
        <translation>没有此名称的设置。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::BrushRow</name>
    <message>
        <source>Reset %1</source>
        <translation>重置“%1”</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasSizeDialog</name>
    <message>
        <source>Canvas Size</source>
        <translation>画布大小</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高度(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>单位(&amp;U)</translation>
    </message>
    <message>
        <source>What is there stays</source>
        <translation>现有内容的位置</translation>
    </message>
    <message>
        <source>At the top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>At the top</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>At the top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>At the left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>At the right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>At the bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>At the bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>%1 × %2 pixels; what lies beyond is cut off.</source>
        <translation>%1 × %2 像素；超出部分会被裁掉。</translation>
    </message>
    <message>
        <source>%1 × %2 pixels.</source>
        <translation>%1 × %2 像素。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasStatus</name>
    <message>
        <source>Shapes</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>What paints this picture</source>
        <translation>绘制此图片的渲染器</translation>
    </message>
    <message>
        <source>Pressure %1 %</source>
        <translation>压力 %1%</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Mirrored, %1</source>
        <translation>镜像，%1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::CanvasViewport</name>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ChoiceEditor</name>
    <message>
        <source>Other (%1)</source>
        <translation>其他（%1）</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ColorPanel</name>
    <message>
        <source>Foreground colour</source>
        <translation>前景色</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>最近使用的颜色</translation>
    </message>
    <message>
        <source>%1: what is chosen below</source>
        <translation>%1：在下方选取的颜色</translation>
    </message>
    <message>
        <source>Colour as red, green and blue</source>
        <translation>以红、绿、蓝表示的颜色</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal</source>
        <translation>#rrggbb、#rgb 或 teal 之类的名称</translation>
    </message>
    <message>
        <source>Swap the colours (X)</source>
        <translation>交换颜色 (X)</translation>
    </message>
    <message>
        <source>Pick a colour from the canvas (I, or hold Ctrl)</source>
        <translation>从画布拾取颜色 (I，或按住 Ctrl)</translation>
    </message>
    <message>
        <source>More to do with colours</source>
        <translation>颜色的更多操作</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>色轮</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>&amp;Eyedropper Takes</source>
        <translation>吸管取样(&amp;E)</translation>
    </message>
    <message>
        <source>One Pixel</source>
        <translation>单个像素</translation>
    </message>
    <message>
        <source>Average of %1 × %1 Pixels</source>
        <translation>%1 × %1 像素平均值</translation>
    </message>
    <message>
        <source>&amp;Forget Recent Colours</source>
        <translation>清除最近使用的颜色(&amp;F)</translation>
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
        <translation>色相：拖动或用方向键</translation>
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
        <translation>压力</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>倾斜</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::Document</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>没有可保存的图片。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ImagesEditor</name>
    <message>
        <source>Load…</source>
        <translation>载入…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: at most %2 images are used.</source>
        <translation>已略去“%1”：最多使用 %2 张图像。</translation>
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
        <translation>锁定透明度</translation>
    </message>
    <message>
        <source>Strokes change its colours alone</source>
        <translation>笔画只改变图层已有内容的颜色</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Blend mode of the layer</source>
        <translation>图层的混合模式</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>图层的不透明度</translation>
    </message>
    <message>
        <source>Add a layer</source>
        <translation>添加图层</translation>
    </message>
    <message>
        <source>Duplicate the layer</source>
        <translation>复制图层</translation>
    </message>
    <message>
        <source>Move the layer up</source>
        <translation>上移图层</translation>
    </message>
    <message>
        <source>Move the layer down</source>
        <translation>下移图层</translation>
    </message>
    <message>
        <source>Merge with the layer below</source>
        <translation>与下方图层合并</translation>
    </message>
    <message>
        <source>Delete the layer</source>
        <translation>删除图层</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>混合模式</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Ticked layers are seen; a double click names one</source>
        <translation>勾选的图层可见；双击可重命名</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>图层 %1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::LeftPicturesDialog</name>
    <message>
        <source>Recover Pictures</source>
        <translation>恢复图片</translation>
    </message>
    <message>
        <source>Dabpainter ended unexpectedly while these were painted. Each goes on where it was, with its undo steps where they are left.</source>
        <translation>Dabpainter 在绘制以下图片时意外退出。每张图片都可从中断处继续，撤销步骤若有保留也会一并恢复。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>稍后(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>删除(&amp;D)…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>没有图片。</translation>
    </message>
    <message>
        <source>without undo steps</source>
        <translation>无撤销步骤</translation>
    </message>
    <message>
        <source>one undo step</source>
        <translation>1 个撤销步骤</translation>
    </message>
    <message>
        <source>%1 undo steps</source>
        <translation>%1 个撤销步骤</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3, %4 on the disk</source>
        <translation>%1 × %2 像素，%3，占用磁盘 %4</translation>
    </message>
    <message>
        <source>Delete this picture for good?</source>
        <translation>要永久删除此图片吗？</translation>
    </message>
    <message>
        <source>It cannot be deleted: it is in use, or the disk refuses.</source>
        <translation>无法删除：图片正在使用，或磁盘拒绝操作。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::MainWindow</name>
    <message>
        <source>The graphics card cannot paint this picture</source>
        <translation>显卡无法绘制此图片</translation>
    </message>
    <message>
        <source>A canvas of %1 × %2 pixels cannot be had from this graphics driver.</source>
        <translation>此显卡驱动无法提供 %1 × %2 像素的画布。</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here, its undo steps are not</source>
        <translation>显卡曾短暂丢失；图片仍在，但撤销步骤已丢失</translation>
    </message>
    <message>
        <source>The picture cannot be recovered: %1.</source>
        <translation>无法恢复图片：%1。</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存“%1”</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Place Image</source>
        <translation>置入图像</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新建(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Place Image…</source>
        <translation>置入图像(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Recover Pictures…</source>
        <translation>恢复图片(&amp;R)…</translation>
    </message>
    <message>
        <source>No run has left a picture</source>
        <translation>没有以往运行遗留的图片</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Undo &amp;Steps…</source>
        <translation>撤销步骤(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Keys…</source>
        <translation>快捷键(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>画布(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paint with</source>
        <translation>绘制方式(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>自动(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Graphics Card</source>
        <translation>显卡(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Processor</source>
        <translation>处理器(&amp;P)</translation>
    </message>
    <message>
        <source>Holds for pictures that are made or opened from now on</source>
        <translation>对此后新建或打开的图片生效</translation>
    </message>
    <message>
        <source>&amp;Fingers</source>
        <translation>手指触控(&amp;F)</translation>
    </message>
    <message>
        <source>Move the Canvas Once a &amp;Pen Was Seen</source>
        <translation>检测到压感笔后移动画布(&amp;P)</translation>
    </message>
    <message>
        <source>Always &amp;Move the Canvas</source>
        <translation>始终移动画布(&amp;M)</translation>
    </message>
    <message>
        <source>Al&amp;ways Paint</source>
        <translation>始终绘画(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Brush</source>
        <translation>画笔(&amp;B)</translation>
    </message>
    <message>
        <source>Size by Moving the Pointer</source>
        <translation>移动指针调整大小</translation>
    </message>
    <message>
        <source>&amp;Previous Brush</source>
        <translation>上一个画笔(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>缩小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>增大(&amp;L)</translation>
    </message>
    <message>
        <source>So&amp;fter</source>
        <translation>更柔(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Harder</source>
        <translation>更硬(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>S&amp;wap Colours</source>
        <translation>交换颜色(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Default Colours</source>
        <translation>默认颜色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Eyedropper</source>
        <translation>吸管(&amp;E)</translation>
    </message>
    <message>
        <source>Reco&amp;gnise Shapes</source>
        <translation>识别形状(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Reset All Settings</source>
        <translation>重置所有设置(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Reset to Preset</source>
        <translation>恢复为预设(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>实际像素(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Whole Canvas</source>
        <translation>整个画布(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全屏(&amp;F)</translation>
    </message>
    <message>
        <source>Brushes</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Brush settings</source>
        <translation>画笔设置</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>The disk takes no undo steps: save, as a crash would lose this picture</source>
        <translation>磁盘无法写入撤销步骤：请保存，否则崩溃时会丢失此图片</translation>
    </message>
    <message>
        <source>No shape was recognised</source>
        <translation>未识别出形状</translation>
    </message>
    <message>
        <source>Undo Steps</source>
        <translation>撤销步骤</translation>
    </message>
    <message>
        <source>Steps that can be undone:</source>
        <translation>可撤销的步骤数：</translation>
    </message>
    <message>
        <source>Strokes become shapes; what is none is taken away</source>
        <translation>笔画变为形状；无法识别的会被移除</translation>
    </message>
    <message>
        <source>Strokes stay as they are drawn</source>
        <translation>笔画保持绘制时的样子</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>绘画</translation>
    </message>
    <message>
        <source>Canvas &amp;Size…</source>
        <translation>画布大小(&amp;S)…</translation>
    </message>
    <message>
        <source>Crop &amp;to Drawn</source>
        <translation>裁剪到绘制范围(&amp;T)</translation>
    </message>
    <message>
        <source>Nothing is drawn</source>
        <translation>尚未绘制任何内容</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>Turn &amp;Right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>转正(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>镜像(&amp;M)</translation>
    </message>
    <message>
        <source>Turn by Dragging</source>
        <translation>拖动旋转</translation>
    </message>
    <message>
        <source>Pen Pr&amp;essure…</source>
        <translation>笔压(&amp;E)…</translation>
    </message>
    <message>
        <source>Steady hand</source>
        <translation>防抖</translation>
    </message>
    <message>
        <source>S&amp;ymmetry</source>
        <translation>对称(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>无(&amp;N)</translation>
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
        <translation>两者(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Rays</source>
        <translation>放射(&amp;R)</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>对称</translation>
    </message>
    <message>
        <source>Draws copies of every stroke, mirrored or turned</source>
        <translation>为每一笔绘制镜像或旋转的副本</translation>
    </message>
    <message>
        <source>N&amp;umber of Rays…</source>
        <translation>放射数量(&amp;U)…</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>放射</translation>
    </message>
    <message>
        <source>Rays of the symmetry:</source>
        <translation>对称的放射数量：</translation>
    </message>
    <message>
        <source>&amp;Mirrored Rays</source>
        <translation>镜像放射(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Centre Here</source>
        <translation>以此处为中心(&amp;C)</translation>
    </message>
    <message>
        <source>Centre in the M&amp;iddle</source>
        <translation>中心置于中间(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Drag the Centre</source>
        <translation>拖动中心(&amp;D)</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>最近打开(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Painter&apos;s &amp;Guide</source>
        <translation>绘画指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About Dabpainter</source>
        <translation>关于 Dabpainter(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>记录(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>开始记录(&amp;R)</translation>
    </message>
    <message>
        <source>What is painted from here on is kept, to be exported</source>
        <translation>从现在起记录绘制过程，以便导出</translation>
    </message>
    <message>
        <source>&amp;Export Recording…</source>
        <translation>导出记录(&amp;E)…</translation>
    </message>
    <message>
        <source>Export &amp;Time-Lapse…</source>
        <translation>导出延时动画(&amp;T)…</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>已导出 %1</translation>
    </message>
    <message>
        <source>Painting the time-lapse…</source>
        <translation>正在绘制延时动画…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Enter or a double click puts it down, Escape gives it up</source>
        <translation>按 Enter 或双击放下，按 Escape 放弃</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>矩形(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Lasso</source>
        <translation>套索(&amp;L)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy All &amp;Layers</source>
        <translation>复制所有图层(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>There is no picture to paste</source>
        <translation>没有可粘贴的图片</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>E&amp;raser</source>
        <translation>橡皮擦(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Smudge</source>
        <translation>涂抹(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>填充(&amp;F)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Strokes become the line, polygon, ellipse, arc or arrow they are meant as</source>
        <translation>把笔画变成所要的直线、多边形、椭圆、圆弧或箭头</translation>
    </message>
    <message>
        <source>This layer is hidden: nothing would be seen of it</source>
        <translation>此图层已隐藏：操作结果不可见</translation>
    </message>
    <message>
        <source>There is not enough memory to fill this</source>
        <translation>内存不足，无法填充</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反选(&amp;I)</translation>
    </message>
    <message>
        <source>Strokes keep to what is selected; Escape selects nothing</source>
        <translation>笔触只会画在选区内；按 Escape 取消选择</translation>
    </message>
    <message>
        <source>The graphics card was lost for a moment; the picture is here as the last step left it</source>
        <translation>显卡曾短暂丢失；图片仍在，保持最后一步之后的样子</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::NewCanvasDialog</name>
    <message>
        <source>New Canvas</source>
        <translation>新建画布</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高度(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>背景(&amp;B)</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Takes about %1 of memory.</source>
        <translation>约占用 %1 内存。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PaletteLibrary</name>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>无法删除“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable palette: %2.</source>
        <translation>“%1”不是可用的调色板：%2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PalettePage</name>
    <message>
        <source>Colours of the palette</source>
        <translation>调色板的颜色</translation>
    </message>
    <message>
        <source>No colours yet: + adds the present one.</source>
        <translation>尚无颜色：按 + 添加当前颜色。</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Add the present colour to the palette</source>
        <translation>将当前颜色添加到调色板</translation>
    </message>
    <message>
        <source>More to do with palettes</source>
        <translation>调色板的更多操作</translation>
    </message>
    <message>
        <source>&amp;New Palette…</source>
        <translation>新建调色板(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Rename Palette…</source>
        <translation>重命名调色板(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete Palette…</source>
        <translation>删除调色板(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Import Palettes…</source>
        <translation>导入调色板(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export Palette…</source>
        <translation>导出调色板(&amp;E)…</translation>
    </message>
    <message>
        <source>Re&amp;name Colour…</source>
        <translation>重命名颜色(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Remove Colour</source>
        <translation>移除颜色(&amp;R)</translation>
    </message>
    <message>
        <source>Rename Colour</source>
        <translation>重命名颜色</translation>
    </message>
    <message>
        <source>New Palette</source>
        <translation>新建调色板</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>重命名调色板</translation>
    </message>
    <message>
        <source>Delete the palette &quot;%1&quot;?</source>
        <translation>要删除调色板“%1”吗？</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>此操作无法撤销。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PictureFile</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>无法打开“%1”：%2。</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>it is not an image of a known kind</source>
        <translation>这不是已知类型的图像</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>it is damaged (%1)</source>
        <translation>文件已损坏（%1）</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetBrowser</name>
    <message>
        <source>Search brushes</source>
        <translation>搜索画笔</translation>
    </message>
    <message>
        <source>Save the present settings as a new brush</source>
        <translation>将当前设置保存为新画笔</translation>
    </message>
    <message>
        <source>More to do with the chosen brush</source>
        <translation>所选画笔的更多操作</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>%1 – modified</source>
        <translation>%1 – 已修改</translation>
    </message>
    <message>
        <source>There are no brushes yet: import some by the menu above, or save the present settings as one.</source>
        <translation>尚无画笔：请用上方菜单导入，或将当前设置保存为画笔。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetChoice</name>
    <message>
        <source>Save as New Brush</source>
        <translation>另存为新画笔</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Replace the brush &quot;%1&quot;?</source>
        <translation>要替换画笔“%1”吗？</translation>
    </message>
    <message>
        <source>It takes the present settings, and what it was is lost.</source>
        <translation>它将采用当前设置，原有内容会丢失。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Rename Brush</source>
        <translation>重命名画笔</translation>
    </message>
    <message>
        <source>Delete the brush &quot;%1&quot;?</source>
        <translation>要删除画笔“%1”吗？</translation>
    </message>
    <message>
        <source>Delete the file &quot;%1&quot; with its %2 brushes?</source>
        <translation>要删除文件“%1”及其中的 %2 个画笔吗？</translation>
    </message>
    <message>
        <source>This cannot be taken back.</source>
        <translation>此操作无法撤销。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Of &quot;%1&quot; could not be carried over:
%2</source>
        <translation>“%1”中的以下内容无法导入：
%2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetDelegate</name>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>no preset</source>
        <translation>无预设</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetFilter</name>
    <message>
        <source>No brush is called &quot;%1&quot;: clear the search.</source>
        <translation>没有名为“%1”的画笔：请清除搜索。</translation>
    </message>
    <message>
        <source>None of these is called &quot;%1&quot;: clear the search, or show all brushes.</source>
        <translation>其中没有名为“%1”的画笔：请清除搜索，或显示全部画笔。</translation>
    </message>
    <message>
        <source>No favourites yet: a click on the star of a brush makes it one, or * in the list.</source>
        <translation>还没有收藏：点击画笔上的星，或在列表中按 * 即可收藏。</translation>
    </message>
    <message>
        <source>No brush is of this kind: show all brushes.</source>
        <translation>没有此类画笔：请显示全部画笔。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetKinds</name>
    <message>
        <source>Kind of brushes</source>
        <translation>画笔种类</translation>
    </message>
    <message>
        <source>Which brushes are listed</source>
        <translation>列出哪些画笔</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>收藏</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetLibrary</name>
    <message>
        <source>it does not hold this brush</source>
        <translation>其中没有此画笔</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed.</source>
        <translation>无法重命名“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2.</source>
        <translation>无法删除“%1”：%2。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>there is no memory for it</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it holds no brush</source>
        <translation>其中没有画笔</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no usable brush file: %2.</source>
        <translation>“%1”不是可用的画笔文件：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListModel</name>
    <message>
        <source>Every setting at its default</source>
        <translation>所有设置均为默认值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>无法使用“%1”：%2</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>作者：%1</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetListView</name>
    <message>
        <source>Brushes</source>
        <translation>画笔</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PresetMenu</name>
    <message>
        <source>Save as &amp;New Brush…</source>
        <translation>另存为新画笔(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Overwrite with Present Settings…</source>
        <translation>用当前设置覆盖(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>删除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>收藏(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import Brushes…</source>
        <translation>导入画笔(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>显示文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Presets Set the &amp;Colour</source>
        <translation>预设同时设定颜色(&amp;C)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureCurveEditor</name>
    <message>
        <source>Pressure curve</source>
        <translation>压力曲线</translation>
    </message>
    <message>
        <source>Arrows move a point, Ctrl with left and right chooses one, Insert adds one, Delete takes it away</source>
        <translation>方向键移动点，Ctrl 加左右键选择点，Insert 添加，Delete 删除</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureDialog</name>
    <message>
        <source>Pen Pressure</source>
        <translation>笔压力</translation>
    </message>
    <message>
        <source>Clear the &amp;Sheet</source>
        <translation>清空试画区(&amp;S)</translation>
    </message>
    <message>
        <source>Draw here to try it</source>
        <translation>在此绘制试用</translation>
    </message>
    <message>
        <source>So&amp;ft</source>
        <translation>柔(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Linear</source>
        <translation>线性(&amp;L)</translation>
    </message>
    <message>
        <source>Fir&amp;m</source>
        <translation>硬(&amp;M)</translation>
    </message>
    <message>
        <source>The pen&apos;s %1 % count as %2 %</source>
        <translation>笔的 %1% 计为 %2%</translation>
    </message>
    <message>
        <source>No pen presses</source>
        <translation>没有笔按压</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::PressureTester</name>
    <message>
        <source>Sheet to try the pressure on</source>
        <translation>压力试画区</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterReader</name>
    <message>
        <source>its layers have too many pixels together</source>
        <translation>图层的像素总数过多</translation>
    </message>
    <message>
        <source>it is no OpenRaster picture, or damaged</source>
        <translation>不是 OpenRaster 图片，或已损坏</translation>
    </message>
    <message>
        <source>the picture of its layer &quot;%1&quot; is missing or damaged</source>
        <translation>图层“%1”的图片缺失或已损坏</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>此 dabpainter 构建时未包含 OpenRaster 所需的 QuaZip</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>压缩包已损坏</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RasterWriter</name>
    <message>
        <source>this dabpainter was built without QuaZip, which OpenRaster needs</source>
        <translation>此 dabpainter 构建时未包含 OpenRaster 所需的 QuaZip</translation>
    </message>
    <message>
        <source>there is no memory for the file</source>
        <translation>内存不足，无法生成文件</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecentFiles</name>
    <message>
        <source>No picture yet</source>
        <translation>尚无图片</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::RecordingSign</name>
    <message>
        <source>Recording</source>
        <translation>正在记录</translation>
    </message>
    <message>
        <source>What is painted is recorded: stop it, or export it</source>
        <translation>正在记录绘制过程：可停止或导出</translation>
    </message>
    <message>
        <source>A recording runs</source>
        <translation>正在记录</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SampleStroke</name>
    <message>
        <source>A stroke with the present brush</source>
        <translation>用当前画笔绘制的一笔</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SelectionEditor</name>
    <message>
        <source>The layer is hidden</source>
        <translation>图层已隐藏</translation>
    </message>
    <message>
        <source>Nothing of this layer is selected</source>
        <translation>此图层没有内容被选中</translation>
    </message>
    <message>
        <source>The canvas takes no picture now; the log says why.</source>
        <translation>画布目前无法接受图片；原因见日志。</translation>
    </message>
    <message>
        <source>The layer&apos;s alpha is locked</source>
        <translation>图层的透明度已锁定</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SessionRecorder</name>
    <message>
        <source>The recording cannot be written: %1.</source>
        <translation>无法写入记录：%1。</translation>
    </message>
    <message>
        <source>The canvas cannot be recorded; the log says why.</source>
        <translation>无法记录画布；原因见日志。</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>没有记录任何内容。</translation>
    </message>
    <message>
        <source>The recording could not be written down: %1.</source>
        <translation>未能写下记录：%1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved: %2.</source>
        <translation>无法保存“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShadeTriangle</name>
    <message>
        <source>Lightness and chroma</source>
        <translation>明度和彩度</translation>
    </message>
    <message>
        <source>Lightness and chroma: drag, or the arrow keys</source>
        <translation>明度和彩度：拖动或用方向键</translation>
    </message>
    <message>
        <source>Lightness %1 %, chroma %2</source>
        <translation>明度 %1%，彩度 %2</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::ShortcutsDialog</name>
    <message>
        <source>&amp;Assign</source>
        <translation>指定(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No Key</source>
        <translation>无按键(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Usual Key</source>
        <translation>默认按键(&amp;U)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>搜索命令和按键</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>命令及其按键</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>新按键</translation>
    </message>
    <message>
        <source>All &amp;Usual</source>
        <translation>全部默认(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Take It</source>
        <translation>仍要使用(&amp;T)</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot;, which would have none then.</source>
        <translation>%1 是“%2”的快捷键，改用后它将没有快捷键。</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StabiliserControl</name>
    <message>
        <source>Unsteadied</source>
        <translation>无防抖</translation>
    </message>
    <message>
        <source>Averaged</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Pulled string</source>
        <translation>拉绳</translation>
    </message>
    <message>
        <source>What steadies the hand</source>
        <translation>防抖方式</translation>
    </message>
    <message>
        <source>What steadies the hand; each brush remembers its own</source>
        <translation>防抖方式；每个画笔各自记住</translation>
    </message>
    <message>
        <source>How much the hand is steadied</source>
        <translation>防抖强度</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>到终点</translation>
    </message>
    <message>
        <source>At its end a line goes on to where the pointer is</source>
        <translation>结束时线条会延伸到指针所在处</translation>
    </message>
    <message>
        <source>The string is %1 points long</source>
        <translation>绳长 %1 点</translation>
    </message>
    <message>
        <source>Follows within %1 s</source>
        <translation>在 %1 秒内跟上</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::StackReader</name>
    <message>
        <source>Some layers have blend modes that are not known here; they are shown as normal.</source>
        <translation>部分图层的混合模式未知，按正常显示。</translation>
    </message>
    <message>
        <source>a layer lies too far from the picture</source>
        <translation>有图层离图片过远</translation>
    </message>
    <message>
        <source>Groups of layers have come apart, and may look another way.</source>
        <translation>图层组已拆开，外观可能有所不同。</translation>
    </message>
    <message>
        <source>its groups lie too deep in each other</source>
        <translation>图层组嵌套过深</translation>
    </message>
    <message>
        <source>the picture of a layer lies outside of the archive</source>
        <translation>有图层的图片位于压缩包之外</translation>
    </message>
    <message>
        <source>it has more than %1 layers</source>
        <translation>图层超过 %1 个</translation>
    </message>
    <message>
        <source>Some of its contents are no layers of pixels, and are left out.</source>
        <translation>部分内容不是像素图层，已略去。</translation>
    </message>
    <message>
        <source>its list of layers is damaged (%1)</source>
        <translation>图层列表已损坏（%1）</translation>
    </message>
    <message>
        <source>it has no layers</source>
        <translation>没有图层</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::SwatchGrid</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>dabcanvas::dabpainter::TimelapseExport</name>
    <message>
        <source>There is no memory for the time-lapse.</source>
        <translation>内存不足，无法制作延时动画。</translation>
    </message>
    <message>
        <source>The recording</source>
        <translation>记录</translation>
    </message>
</context>
</TS>
