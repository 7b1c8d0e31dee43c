// SPDX-License-Identifier: MIT
#include "tests/support/recordinggl.h"

#include <qopengl.h>

namespace {

RecordingGl &gl()
{
    return RecordingGl::instance();
}

void note(const char *name, const QStringList &arguments = {})
{
    gl().calls.append(QLatin1String(name) + QLatin1Char(' ') + arguments.join(QLatin1Char(' ')));
}

void noteState(const char *name, const QStringList &arguments)
{
    note(name, arguments);
    if (gl().isBetweenBeginAndEnd)
        ++gl().mistakes;
}

void setCapability(GLenum capability, bool on)
{
    if (capability == GL_BLEND)
        gl().state.isBlending = on;
    else if (capability == GL_POINT_SMOOTH)
        gl().state.isSmoothingPoints = on;
    else
        ++gl().mistakes; // none that the overlay has any business with
}

QString text(unsigned value)
{
    return QString::number(value);
}

QString text(float value)
{
    return QString::number(double(value));
}

void setSize(float &size, float value)
{
    if (value > 0.0f)
        size = value;
    else
        ++gl().mistakes;
}

} // namespace

RecordingGl &RecordingGl::instance()
{
    static RecordingGl recording;
    return recording;
}

void RecordingGl::reset()
{
    *this = RecordingGl();
}

QList<RecordingGl::Primitive> RecordingGl::primitivesOf(unsigned mode) const
{
    QList<Primitive> found;
    for (const Primitive &primitive : primitives) {
        if (primitive.mode == mode)
            found.append(primitive);
    }
    return found;
}

QList<RecordingGl::Primitive> RecordingGl::strokes() const
{
    return primitivesOf(GL_LINES);
}

QList<RecordingGl::Primitive> RecordingGl::dots() const
{
    return primitivesOf(GL_POINTS);
}

void GLAPIENTRY glEnable(GLenum capability)
{
    noteState("Enable", {text(capability)});
    setCapability(capability, true);
}

void GLAPIENTRY glDisable(GLenum capability)
{
    noteState("Disable", {text(capability)});
    setCapability(capability, false);
}

void GLAPIENTRY glBlendFunc(GLenum source, GLenum destination)
{
    noteState("BlendFunc", {text(source), text(destination)});
    gl().state.blendSource = source;
    gl().state.blendDestination = destination;
}

void GLAPIENTRY glHint(GLenum target, GLenum mode)
{
    noteState("Hint", {text(target), text(mode)});
    if (target == GL_POINT_SMOOTH_HINT)
        gl().state.pointSmoothHint = mode;
    else
        ++gl().mistakes;
}

void GLAPIENTRY glLineWidth(GLfloat width)
{
    noteState("LineWidth", {text(width)});
    setSize(gl().state.lineWidth, width);
}

void GLAPIENTRY glPointSize(GLfloat size)
{
    noteState("PointSize", {text(size)});
    setSize(gl().state.pointSize, size);
}

void GLAPIENTRY glDepthMask(GLboolean writes)
{
    noteState("DepthMask", {text(unsigned(writes))});
    gl().state.isWritingDepth = writes != GL_FALSE;
}

void GLAPIENTRY glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha)
{
    note("Color4f", {text(red), text(green), text(blue), text(alpha)});
    gl().state.color = {red, green, blue, alpha};
}

void GLAPIENTRY glBegin(GLenum mode)
{
    noteState("Begin", {text(mode)});
    gl().isBetweenBeginAndEnd = true;
    gl().primitives.append({mode, {}, gl().state});
}

void GLAPIENTRY glEnd()
{
    note("End");
    if (!gl().isBetweenBeginAndEnd)
        ++gl().mistakes;
    gl().isBetweenBeginAndEnd = false;
}

void GLAPIENTRY glVertex3f(GLfloat x, GLfloat y, GLfloat z)
{
    note("Vertex3f", {text(x), text(y), text(z)});
    if (gl().isBetweenBeginAndEnd)
        gl().primitives.last().vertices.append({x, y, z});
    else
        ++gl().mistakes;
}
