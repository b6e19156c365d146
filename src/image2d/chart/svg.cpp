#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "image2d/chart/vector_drawing.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace morvane {
namespace {
constexpr std::string_view FAMILIES =
    "Helvetica, Arial, 'Liberation Sans', 'DejaVu Sans', sans-serif";
constexpr REAL LARGEST = 1e7; // of all numbers written

// With a point and at most that many decimals, whatever language or number format is in use.
std::string Number(REAL value, NAT decimals = 2) {
    NAT unit = 1;
    for (NAT i = 0; i < decimals; ++i)
        unit *= 10;
    const NAT whole = ROUND(LIMIT(value, -LARGEST, LARGEST) * static_cast<REAL>(unit));
    std::string text = std::to_string(std::abs(whole) / unit);
    if (const NAT rest = std::abs(whole) % unit; rest != 0) {
        std::string digits = std::to_string(rest + unit).substr(1);
        digits.erase(digits.find_last_not_of('0') + 1);
        text += "." + digits;
    }
    return whole < 0 ? "-" + text : text;
}

std::string Point(const COMPLEX &point) { return Number(point.x) + "," + Number(point.y); }

std::string Colour(const HYPERNAT &colour) {
    constexpr std::string_view DIGITS = "0123456789abcdef";
    std::string text = "#";
    for (const NAT component : {colour.x, colour.y, colour.z}) {
        const auto value = static_cast<std::size_t>(LIMIT(component, NAT{0}, NAT{255}));
        text += {DIGITS[value / 16], DIGITS[value % 16]};
    }
    return text;
}
// A quarter, 64 of 255, is written as 0.25.
std::string Opacity(NAT alpha) {
    const REAL share = static_cast<REAL>(alpha) / 255;
    const REAL hundredths = static_cast<REAL>(ROUND(share * 100)) / 100;
    return Number(share, std::abs(share - hundredths) < 0.0015 ? 2 : 3);
}

std::string Style(const SHAPE &shape) {
    std::string text = " style=\"fill:";
    text += shape.fill.w == 0 ? std::string("none")
                              : Colour(shape.fill) + ";fill-opacity:" + Opacity(shape.fill.w);
    if (shape.stroke.w > 0)
        text += ";stroke-width:" + Number(shape.lineWidth) + ";stroke:" + Colour(shape.stroke) +
                ";stroke-opacity:" + Opacity(shape.stroke.w);
    return text + "\"";
}

std::string Attribute(std::string_view name, REAL value) {
    return " " + std::string(name) + "=\"" + Number(value) + "\"";
}

// A text's characters for XML; those that XML 1.0 has no place for are left out.
std::string Escaped(const UTF16 &text) {
    std::string escaped;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        const NAT code = NAT{unit.low} + 256 * NAT{unit.high};
        if (code < 32 || INTO(code, 0x7F, 0x9F) || INTO(code, 0xD800, 0xDFFF) || code >= 0xFFFE)
            continue;
        switch (code) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        case '\'': escaped += "&apos;"; break;
        default: escaped += GETUTF8(unit);
        }
    }
    return escaped;
}

std::string Line(const SHAPE &shape) {
    const COMPLEX &a = shape.points[0], &b = shape.points[1];
    return "<line" + Attribute("x1", a.x) + Attribute("y1", a.y) + Attribute("x2", b.x) +
           Attribute("y2", b.y) + Style(shape) + "/>";
}

std::string Path(const std::string &data, const SHAPE &shape) {
    return "<path d=\"" + data + "\"" + Style(shape) + "/>";
}

std::string Lines(const SHAPE &shape) {
    std::string data = "M" + Point(shape.points[0]);
    for (std::size_t i = 1; i < shape.points.size(); ++i)
        data += " L" + Point(shape.points[i]);
    if (shape.kind == SHAPE_KIND::POLYGON) data += " Z";
    return Path(data, shape);
}

std::string Curve(const SHAPE &shape) {
    std::string data = "M" + Point(shape.points[0]);
    for (std::size_t i = 1; i + 1 < shape.points.size(); i += 2)
        data += " Q" + Point(shape.points[i]) + " " + Point(shape.points[i + 1]);
    return Path(data, shape);
}

std::string Rectangle(const SHAPE &shape) {
    const COMPLEX &a = shape.points[0], &b = shape.points[1];
    std::string text =
        "<rect" + Attribute("x", std::min(a.x, b.x)) + Attribute("y", std::min(a.y, b.y)) +
        Attribute("width", std::abs(b.x - a.x)) + Attribute("height", std::abs(b.y - a.y));
    if (shape.radius > 0) text += Attribute("rx", shape.radius) + Attribute("ry", shape.radius);
    return text + Style(shape) + "/>";
}

std::string Bevelled(const SHAPE &shape) {
    std::string text = Rectangle(shape);
    for (const SHAPE &edge : BEVELS(shape))
        text += "\n" + Rectangle(edge);
    return text;
}

std::string Circle(const SHAPE &shape) {
    return "<circle" + Attribute("cx", shape.points[0].x) + Attribute("cy", shape.points[0].y) +
           Attribute("r", shape.radius) + Style(shape) + "/>";
}

std::string Ellipse(const SHAPE &shape) {
    const COMPLEX &centre = shape.points[0];
    const std::string ellipse = "<ellipse" + Attribute("cx", centre.x) + Attribute("cy", centre.y) +
                                Attribute("rx", shape.points[1].x) +
                                Attribute("ry", shape.points[1].y) + Style(shape) + "/>";
    if (shape.angle == 0) return ellipse;
    const REAL degrees = -shape.angle * 180 / PI; // with the clock
    return "<g transform=\"rotate(" + Number(degrees) + " " + Number(centre.x) + " " +
           Number(centre.y) + ")\">" + ellipse + "</g>";
}

// An arc of at most half a turn a command, so that start, end and side are never in doubt.
std::string Arc(const SHAPE &shape) {
    const COMPLEX &centre = shape.points[0];
    const auto at = [&](REAL angle) {
        return Point(
            {centre.x + shape.radius * std::cos(angle), centre.y - shape.radius * std::sin(angle)});
    };
    const REAL turn = shape.angleEnd - shape.angle;
    const REAL count = std::max(std::ceil(std::abs(turn) / 3), 1.0);
    const bool isSector = shape.kind == SHAPE_KIND::SECTOR;
    std::string data = "M" + (isSector ? Point(centre) + " L " : std::string()) + at(shape.angle);
    for (REAL i = 1; i <= count; ++i)
        data += " A " + Number(shape.radius) + " " + Number(shape.radius) + " 0 0 " +
                (turn < 0 ? "1 " : "0 ") + at(shape.angle + turn * i / count);
    if (isSector) data += " Z";
    return Path(data, shape);
}

std::string Text(const SHAPE &shape) {
    const COMPLEX &at = shape.points[0];
    const NAT style = shape.font / 10, set = shape.font % 10;
    std::string text = "<text" + Attribute("x", at.x) + Attribute("y", at.y) + " font-size=\"" +
                       Number(shape.size, 3) + "em\"";
    if (shape.anchor != TEXT_ANCHOR::START)
        text += shape.anchor == TEXT_ANCHOR::MIDDLE ? " text-anchor=\"middle\""
                                                    : " text-anchor=\"end\"";
    if (style == 2 || style == 4) text += " font-style=\"italic\"";
    if (style == 1 || style == 4 || set == 1) text += " font-weight=\"bold\"";
    if (style == 3) text += " text-decoration=\"underline\"";
    if (shape.isUpwards)
        text += " transform=\"rotate(-90 " + Number(at.x) + " " + Number(at.y) + ")\"";
    return text + Style(shape) + ">" + Escaped(shape.text) + "</text>";
}

std::string Element(const SHAPE &shape) {
    switch (shape.kind) {
    case SHAPE_KIND::LINE: return Line(shape);
    case SHAPE_KIND::CURVE: return Curve(shape);
    case SHAPE_KIND::POLYLINE:
    case SHAPE_KIND::POLYGON: return Lines(shape);
    case SHAPE_KIND::RECTANGLE: return shape.isBevelled ? Bevelled(shape) : Rectangle(shape);
    case SHAPE_KIND::CIRCLE: return Circle(shape);
    case SHAPE_KIND::ELLIPSE: return Ellipse(shape);
    case SHAPE_KIND::ARC:
    case SHAPE_KIND::SECTOR: return Arc(shape);
    default: return Text(shape);
    }
}

// Lines and polygons are cut at the window already, but for their width; all else that reaches over
// it needs the window's clip path.
bool NeedsClip(const SHAPE &shape, const PICTURE_AREA &picture) {
    const bool isCut = shape.kind == SHAPE_KIND::LINE || shape.kind == SHAPE_KIND::POLYLINE ||
                       shape.kind == SHAPE_KIND::POLYGON;
    return !isCut && !(shape.clip == picture) && !shape.clip.HOLDS(GETBOUNDS(shape));
}

std::string ClipPath(std::size_t number, const PICTURE_AREA &clip) {
    return "<clipPath id=\"window" + std::to_string(number) + "\"><rect" +
           Attribute("x", clip.left) + Attribute("y", clip.top) + Attribute("width", clip.WIDTH()) +
           Attribute("height", clip.HEIGHT()) + "/></clipPath>\n";
}

UTF16 WithExtension(const UTF16 &name, const char *extension) {
    return LOWERCASE(GETFILEEXTENSION(name)) == extension ? name : name + "." + extension;
}
} // namespace

std::string T2DVECTOR::GETSVG() {
    Prepare();
    const PICTURE_AREA picture{0, 0, static_cast<REAL>(sizeX), static_cast<REAL>(sizeY)};
    const std::string w = std::to_string(sizeX), h = std::to_string(sizeY);
    std::vector<PICTURE_AREA> clips;
    std::string elements, paths;
    for (const SHAPE &shape : shapes) {
        if (!NeedsClip(shape, picture)) {
            elements += Element(shape) + "\n";
            continue;
        }
        const auto found = std::find(clips.begin(), clips.end(), shape.clip);
        const std::size_t number = static_cast<std::size_t>(found - clips.begin()) + 1;
        if (found == clips.end()) {
            clips.push_back(shape.clip);
            paths += ClipPath(number, shape.clip);
        }
        elements += "<g clip-path=\"url(#window" + std::to_string(number) + ")\">" +
                    Element(shape) + "</g>\n";
    }
    std::string file = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                       w + "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h + "\">\n";
    if (!paths.empty()) file += "<defs>\n" + paths + "</defs>\n";
    file += "<g font-family=\"" + std::string(FAMILIES) + "\" font-size=\"" + Number(SVG_EM) +
            "px\" stroke-linejoin=\"round\">\n";
    if (BACKGROUND.w > 0) {
        SHAPE ground;
        ground.kind = SHAPE_KIND::RECTANGLE;
        ground.points = {{0, 0}, {picture.right, picture.bottom}};
        ground.fill = BACKGROUND;
        file += Rectangle(ground) + "\n";
    }
    return file + elements + "</g>\n</svg>\n";
}

bool T2DVECTOR::SAVESVG(const UTF16 &name) {
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, WithExtension(name, "svg"))) return false;
    file.WRITE(GETSVG());
    return file.COMMIT();
}
bool T2DVECTOR::SAVESVGZ(const UTF16 &name) {
    FILE_WRITE file;
    if (!ASSIGNGZWRITE(file, WithExtension(name, "svgz"))) return false;
    file.WRITE(GETSVG());
    return file.COMMIT();
}
} // namespace morvane
