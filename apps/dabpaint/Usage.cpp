// SPDX-License-Identifier: MIT
#include "Usage.h"

#include "Maths/Version.h"

namespace dabcanvas::dabpaint {

namespace {

constexpr const char* kTool = R"(NAME
    dabpaint - paint recorded strokes into pictures

SYNOPSIS
    dabpaint paint RECORDING... -o OUT.png [OPTION]...
    dabpaint session [--size WxH] [--record FILE.jsonl] [OPTION]...
    dabpaint shapes [INPUT.csv]... [-o OUT.csv] [--outlines OUT.csv]
    dabpaint preset show | make | preview | import ...
    dabpaint dabs INPUT.json [--header]
    dabpaint properties [--json | --reference FOLDER]
    dabpaint help [COMMAND]
    dabpaint --help | --version

DESCRIPTION
    paint       paints recordings of pen strokes onto a canvas and writes it as PNG
    session     a canvas for programs that paint: a line in, a line out
    shapes      tells the shapes that strokes were meant as
    preset      shows, makes, previews and imports brush presets
    dabs        runs samples through the line process alone and prints its dabs
    properties  lists the brush properties that paint --set and recordings take
    help        prints the help of a command, as does --help after its name

    Numbers are read and written with a decimal point under every locale.

EXIT STATUS
    0  done
    1  the work failed; one line on standard error says why, with file and line
    2  the command line is wrong

EXAMPLES
    dabpaint paint session.dat -o session.png
    dabpaint paint note.inkml -o note.png --set radius=6 --background transparent
    dabpaint help paint
)";

constexpr const char* kPaint = R"(NAME
    dabpaint paint - paint recorded strokes and write the picture

SYNOPSIS
    dabpaint paint RECORDING... -o OUT.png [--size WxH] [--brush FILE.xbf]
                   [--set PROPERTY=VALUE]... [--background COLOUR]
                   [--undo N] [--most-dabs N] [--recognise] [--repeatable]
                   [--stats] [--surface auto|gpu|processor]
                   [--canvas-depth 8|16] [--layer-depth 8|16] [--seed N]
                   [--every N] [--timelapse OUT.webp|FOLDER] [--jobs N]

DESCRIPTION
    Paints the strokes of every RECORDING, in order, onto one canvas and writes
    the picture; or, where -o has %n or %i in it, each onto one of its own. A RECORDING of - is standard input. The picture appears under its
    name only once it is whole, and never takes the place of a file that is read.
    Painting needs neither a window nor a GPU.

OPTIONS
    -o OUT.png, --output OUT.png
        Where to write the picture; - is standard output. The suffix says the
        kind, any that Qt can write here: .png, .jpg, .bmp, .ppm and others. PNG
        without one. Of kinds that keep no transparency, on white. In the name,
        %n is the RECORDING's without folder and suffix, %i its number from 1,
        %s how many strokes are painted, and %% a percent sign.

    --jobs N
        Paints up to N RECORDINGs at once, each in a process of its own, to a
        name with %n or %i. One that fails does not keep others from it.

    --every N
        A picture after every N strokes: to the name of -o, which needs %s, or a
        frame of the timelapse.

    --timelapse OUT.webp|FOLDER
        Writes how the picture came about, a frame a stroke or as --every says
        and the finished picture: an animated WebP, or FOLDER/000001.png and so on.

    --seed N
        Begins the random numbers with N, 0 to 4294967295, so that two runs give
        the same bytes. Of a canvas's recording, in place of its own.

    --size WxH
        Size of the canvas in pixels, at most 16384 a side and 268435456 in all.
        Without it the canvas is as large as the recordings need: the size that
        a JSON recording names, else up to the rightmost and lowest sample and
        the largest brush radius beyond it; of several recordings the largest.

    --brush FILE.xbf
        Paints with the last brush of a preset file, its colour too, instead of
        the default brush. What recordings set changes it, a brush that they
        name takes its place, and --set holds whatever either says. A damaged
        file is refused.

    --set PROPERTY=VALUE
        Sets a brush property; dabpaint properties lists them. It holds for all
        strokes, whatever a recording sets the property to. VALUE is a number,
        yes or no (true/false, 1/0), a colour as #rrggbb or #rrggbbaa or its
        name, pressure,altitude,speed (three numbers) for a control, the path of
        an image, or several paths with commas between them. What lies outside
        the property's range is refused. May be repeated.

    --background COLOUR
        What the canvas is cleared with: #rrggbb, #rrggbbaa, a name, or
        transparent. Without it the first background that a recording names,
        else white.

    --undo N
        Takes the last N strokes back, by undo, before the picture is written.

    --most-dabs N
        Refuses recordings that would take more than about N dabs, 50000000
        unless given, before anything is painted.

    --recognise
        Paints, in place of each stroke, the line, fold line, triangle, rectangle,
        parallelogram, ellipse, arc or arrow that it was meant as. A stroke that
        is none of them leaves nothing.

    --repeatable
        Takes fixed random numbers, so that two runs give the same bytes.

    --stats
        Prints one JSON object on standard output: numbers of strokes, samples
        and dabs, canvas size, what drew, seconds spent and peak memory in
        bytes. Timing each stage makes painting slower.

    --surface auto|gpu|processor
        What draws: OpenGL 3.2, or the processor by itself. auto, the default,
        takes a GPU where there is one; the environment's DABCANVAS_SURFACE, with
        one of these words, says what auto is.

    --canvas-depth 8|16
        Bits a channel of the picture while it is painted, 8 unless given. With
        16, strokes so faint that each hardly shows add up to what they should.
        It takes twice the memory; the picture is written with 8 all the same.

    --layer-depth 8|16
        Bits a channel of what a stroke is gathered in, 16 unless given. With 8,
        faint dabs within a stroke do not add up.

RECORDINGS
    A canvas's recording, JSON lines that begin with {"dabcanvas":"recording"
    (docs/recordings.md), is played by itself, on the surface and with the depths
    that it names: it paints the very bytes that were painted, on another surface
    within 3 of 255. --size makes it as much larger or smaller as fits, --set holds
    whatever it says, --background lies below the picture; --brush, --undo,
    --recognise and --repeatable are refused. All else is strokes:

    The form of a recording is told by its content, not by its name. Pressure is
    0 to 1; altitude, the tilt of the pen, is 0 upright to 1 from 60 degrees on.
    Positions are pixels from the top left, up to 131072 either way.

    Rows
        One sample a line: seconds x y pressure [altitude]. Pressure 0 lifts the
        pen. Blank lines and anything after a # are left out.

    Tables
        Comma-separated values, a row a point. The first row names the columns,
        in any order: x and y; t (time, seconds), pressure (p, force), altitude
        (tilt) and stroke (stroke_id, sample_id, id) may be left out. Without
        names x,y or x,y,pressure or seconds,x,y,pressure[,altitude]. Pressure 0
        lifts the pen.

    SVG
        Paths, lines, polygons, rectangles, circles and ellipses by their outlines,
        curves as many short lines, with transforms and the view box; pressure 1.
        stroke and stroke-width give renderColor and radius.

    Xournal++
        The strokes of a notebook (.xopp), packed or not. The width at each point
        becomes the pressure. Several pages lie side by side.

    JSON
        {"canvas": {"width": 640, "height": 480, "background": "#ffffff"},
         "brush": "pencil.xbf",
         "strokes": [{"brush": "ink-pen.xbf",
                      "set": {"radius": 12, "renderColor": "#203040",
                              "radiusControl": [1, 0, 0]},
                      "samples": [[10, 20, 0.5, 0], [12, 24]]}]}
        canvas, brush, set, pressure and altitude may be left out. What set says
        holds from that stroke to the end of the recording. A brush is a preset
        file; it takes the place of the brush and all settings before it, and
        the stroke's own set comes after it. Paths are relative to the recording.

    InkML
        Traces with their contexts, formats, brushes and groups, penUp traces
        left out and continued traces joined; explicit values, differences and
        second differences; * repeats the last number, ? is unknown.
        X and Y in in, cm, mm, pt and the like become 96 pixels an inch, after
        division by the declared resolution; other units and none are pixels.
        orientation="-ve" counts the other way. A drawing that starts left of or
        above the canvas, or ends beyond 4096 pixels (16384 in length units), is
        moved to 32 pixels from the edge; one that is longer than that is made
        smaller to fit 1024 pixels with 32 around.
        F becomes a pressure by its declared range; without one it is taken as
        it is while no value exceeds 1, else divided by the largest.
        Altitude is the angle between pen and upright in parts of 90 degrees:
        from OE, the elevation above the surface, or from OTx and OTy, the tilts
        from upright, as atan(sqrt(tan(OTx)^2 + tan(OTy)^2)). Angles are degrees
        unless declared in rad or with a range of at most 1.6; without a unit a
        range beyond 90 ends at 90 degrees.
        A trace's brush gives renderColor and, by its width, radius.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint paint session.dat -o session.png --set radius=24 --set radiusControl=1,0,0
    dabpaint paint session.dat -o chalk.png --brush chalk.xbf --set radius=60
    dabpaint paint a.json b.inkml -o both.png --size 1024x768 --repeatable --stats
)";

constexpr const char* kSession = R"(NAME
    dabpaint session - a canvas for programs that paint

SYNOPSIS
    dabpaint session [--size WxH] [--brush FILE.xbf] [--set PROPERTY=VALUE]...
                     [--background COLOUR] [--seed N] [--record FILE.jsonl]
                     [--surface auto|gpu|processor]
                     [--canvas-depth 8|16] [--layer-depth 8|16]

DESCRIPTION
    Reads standard input line by line and answers each line by one on standard
    output, at once: a JSON object with the number of the line and "ok", or an
    "error", after which it goes on. Blank lines have no answer.

    {"stroke": {"samples": [[10, 20, 0.5], [12, 24, 0.7, 0.2]]}}
        x, y, pressure, altitude and seconds; all but x and y may be left out.
        "end": "open" leaves the stroke to a line that has "begins": false.
    {"brush": {"radius": 12, "renderColor": "#203040"}}
        Brush properties; dabpaint properties lists them.
    {"set": {"maskImage": "paper.png"}}
        The same as JSON recordings have them: images by their files.
    {"preset": "pencil.xbf"}
    {"clear": {"color": "#ffffff"}}   {"do": "undo"}   {"do": "redo"}
        Strokes and clears are steps.
    {"save": "out.png"}
        Writes the picture, of the kind that the suffix says.
    {"look": [x, y, width, height]}
        Answers with that part of the canvas, [] for all of it, as "png" in
        base64.

    Whatever else a canvas's recording has in its lines is taken, too; see
    docs/recordings.md.

OPTIONS
    --size WxH
        Size of the canvas in pixels, 800x600 unless given.

    --record FILE.jsonl
        Writes down all that enters the canvas, to be painted again by
        dabpaint paint FILE.jsonl.

    --brush, --set, --background, --seed, --surface, --canvas-depth, --layer-depth
        As in dabpaint help paint.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong. A line that was
    answered by an error is no failure.

EXAMPLES
    my_program | dabpaint session --size 640x480 --record painted.jsonl
)";

constexpr const char* kShapes = R"(NAME
    dabpaint shapes - tell the shapes that strokes were meant as

SYNOPSIS
    dabpaint shapes [INPUT.csv]... [-o OUT.csv] [--outlines OUT.csv]

DESCRIPTION
    Reads strokes from tables of comma-separated values, one row a point, and
    prints one row a stroke. The first row of INPUT.csv names the columns, of
    which sample_id, x and y are read, wherever they stand. The points of a
    stroke are the rows with its sample_id, in their order; other rows may lie
    between. Without an INPUT.csv, and for -, standard input is read.

        sample_id,kind,legs,confidence,geometry

    kind        line, foldline, triangle, rectangle, parallelogram, ellipse, arc,
                arrow or none
    legs        of a fold line, how many straight legs it has
    confidence  0 to 1: how sure the kind is
    geometry    "x y x y ..." of the corners in the order drawn; an arrow's are
                its tail, tip, one barb's end, the tip again and the other's. Of
                ellipses and arcs "cx cy a b rotation start end": the centre, the
                half axes and angles in radians. The point at angle t, with
                r for rotation, is
                    x = cx + a cos t cos r + b sin t sin r
                    y = cy - a cos t sin r + b sin t cos r

    Coordinates may be of any unit; y is taken to point down. Strokes come in the
    order in which their names do, file by file.

OPTIONS
    -o OUT.csv, --output OUT.csv
        Where to write the rows, else standard output. Files appear only whole.

    --outlines OUT.csv
        Also writes the recognised shapes as polylines, rows "sample_id,x,y". A
        closed shape ends where it begins.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint shapes strokes.csv
    dabpaint shapes a.csv b.csv -o shapes.csv --outlines outlines.csv
)";

constexpr const char* kPreset = R"(NAME
    dabpaint preset - show, make, preview, compare and import brush presets

SYNOPSIS
    dabpaint preset show FILE.xbf... [--json]
    dabpaint preset make -o FILE.xbf --name NAME [--brush FILE.xbf]
                    [--tip FILE] [--paper FILE] [--set PROPERTY=VALUE]...
                    [--tags A,B] [--about SENTENCE] [--author NAME] [--licence TEXT]
    dabpaint preset preview FILE.xbf... -o OUT.png [--size WxH]
                    [--set PROPERTY=VALUE]...
    dabpaint preset sheet FILE.xbf... -o OUT.jpg [--size WxH] [--across N]
                    [--set PROPERTY=VALUE]...
    dabpaint preset import FILE... -o OUT.xbf [--name NAME]

DESCRIPTION
    A preset is an XBF file: a name and a record for every brush property that
    is kept, with its tip and paper images.

    show        prints name and version of each brush and its records: the
                property and its value, or the id of one that is not known. Of a
                damaged file, what can be read; then it fails.
    make        writes a preset of the default brush, or of another preset's,
                with the given tip, paper and settings.
    preview     paints a stroke of each file's last brush on white, pressure and
                speed rising and falling; stripes lie under a brush that smudges,
                erases or shades. Several pictures need a folder.
    sheet       paints all onto one picture, a row each: a line, a fast scribble,
                a filled patch, its right third filled twice, a line of rising
                pressure, one of a pen that tilts from upright to flat, and a
                line over colours.
    What preview and sheet cannot read is told and left out; they fail at the end.
    import      writes a preset for a brush of another program: GIMP's .gbr and
                .gih, MyPaint's .myb of version 3, or a picture as a tip. It tells
                line by line what could not be carried over. Several need a folder.

OPTIONS
    --json
        Prints a JSON list instead, one object a file: file, problem (null for
        none), version, and brushes with name, tags, about, author, licence
        (empty where nothing is said) and records. A record has id,
        property and part of a control (null for none), method, type and value.

    -o FILE, --output FILE
        The preset to write; or the picture, of the kind that its suffix says; or
        an existing folder, which gets a NAME.png for NAME.xbf, or a NAME.xbf
        for what is imported.

    --name NAME
        What the brush is called; else an imported one, or one made with a tip,
        as that file says, or as the file is called.

    --brush FILE.xbf
        The preset to start with.

    --tip FILE
        The brush's tip or tips, 16 at most: a GIMP brush with its spacing and
        size, or a picture, of which what is dark paints, or, where it has
        transparency, what is not transparent. --set comes after it.

    --paper FILE
        Paints through this paper, a picture or a GIMP brush of one tip: white
        lets paint through.

    --tags A,B --about SENTENCE --author NAME --licence TEXT
        What the preset says of itself, else what the preset to start with says.

    --set PROPERTY=VALUE
        Sets a brush property, as in dabpaint help paint: textureImages=a.png,b.png
        gives a brush two tips.

    --size WxH
        Size of one preview in pixels, else 480x180; of one sample of a sheet,
        else 176x112. A brush that is too large for it is made smaller.

    --across N
        How many presets stand side by side on a sheet; else one, or two when
        there are more than ten.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint preset make -o chalk.xbf --name Chalk --set radius=40 \
        --set needMaskTexture=yes --set maskImage=paper.png
    dabpaint preset make -o leaf.xbf --tip leaf.gih --set radius=60
    dabpaint preset import charcoal.myb -o charcoal.xbf
    dabpaint preset preview chalk.xbf -o chalk.png
    dabpaint preset sheet *.xbf -o brushes.jpg
)";

constexpr const char* kDabs = R"(NAME
    dabpaint dabs - print the dabs that the line process makes of samples

SYNOPSIS
    dabpaint dabs INPUT.json [--header]

DESCRIPTION
    Runs strokes through the line process, with no canvas and no filter between,
    and prints one CSV row a dab: sample,x,y,radius,pressure,altitude,speed, with
    9 significant digits. "sample" counts the samples of the whole file from 0
    and is the one whose arrival made the dab. INPUT.json of - is standard input.

    {"srand": 1,
     "strokes": [{"set": {"radius": 10, "radiusControl": [1, 0, 0]},
                  "samples": [[0, 0, 0.5, 0], [40, 0, 1, 0]],
                  "end": true}]}

    The first sample of a stroke starts it, the others are appended, the last one
    with the end flag unless "end" is false; a stroke of one sample only starts.
    Numbers are passed on as written; a pressure left out is -1 (none), an
    altitude left out is 0. "srand" seeds the random generator after its own
    first seeding, so that jitter repeats.

    "set" names fields of the line record. The record begins with its defaults
    and is kept from stroke to stroke: radius, pointsDistanceEnabled,
    pointsDistance, radiusTingle, radiusControl ([pressure, altitude, speed]),
    minRadius, maxRadius, smoothEnabled, speedSencitive, sensitivity,
    startRadius, endRadius, trackNum, strokeControlValue, minPointsDistance.

OPTIONS
    --header
        Prints the names of the columns first.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint dabs stroke.json --header > stroke.csv
)";

constexpr const char* kProperties = R"(NAME
    dabpaint properties - list the brush properties

SYNOPSIS
    dabpaint properties [--json | --reference FOLDER]

DESCRIPTION
    Lists every brush property with the values it takes, its default and what it
    does, by group.

OPTIONS
    --json
        Prints a JSON list instead: name, group, type, low, high (null for no
        bound), default and about of each property; unit (null for none); useful,
        where a slider may end (null of what is no number); choices, a list of
        value and name; and with, the properties that it works together with.

    --reference FOLDER
        Writes FOLDER/properties.md, a page of all of them, and a picture of what
        each does to a stroke; the folder is made.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint properties | less
)";

constexpr const char* kHelp = R"(NAME
    dabpaint help - print the help of a command

SYNOPSIS
    dabpaint help [paint | session | shapes | preset | dabs | properties]

DESCRIPTION
    Without a command, prints the help of the tool.

EXIT STATUS
    0 done, 1 the work failed, 2 the command line is wrong.

EXAMPLES
    dabpaint help paint
)";

constexpr struct {
    const char* topic;
    const char* text;
} kTopics[] = {{"paint", kPaint}, {"session", kSession},       {"shapes", kShapes}, {"preset", kPreset},
               {"dabs", kDabs},   {"properties", kProperties}, {"help", kHelp}};

}  // namespace

QStringList commandNames() {
    QStringList names;
    for (const auto& row : kTopics)
        names << QLatin1String(row.topic);
    return names;
}

QByteArray usageText(const QString& topic) {
    if (topic.isEmpty())
        return kTool;
    for (const auto& row : kTopics) {
        if (topic == QLatin1String(row.topic))
            return row.text;
    }
    return {};
}

QByteArray versionText() {
    return "dabpaint " DABCANVAS_VERSION_STRING "\n";
}

}  // namespace dabcanvas::dabpaint
