// SPDX-License-Identifier: MIT
#include "plugin/overlayprograms.h"

#include "host/cgmaterial/cgprogram.h"

#include <orvane/math/matrix.h>

#include <Cg/cgGL.h>
#include <QOpenGLContext>
#include <QString>

namespace {

const QString ProgramFile = QStringLiteral("Shaders/Curves/%1.bin");

// Null when either cannot be made.
CGprogram combinedProgram(const QString &fragmentEntry)
{
    orvane::CgProgram fragment;
    orvane::CgProgram vertex;
    fragment.CreateFromFile(ProgramFile.arg(QStringLiteral("CurvesFragment")), CG_PROFILE_GLSLF,
                            fragmentEntry);
    vertex.CreateFromFile(ProgramFile.arg(QStringLiteral("CurvesVertex")), CG_PROFILE_GLSLV,
                          QStringLiteral("vertex_shader"));
    if (!fragment.Handle() || !vertex.Handle())
        return nullptr;
    const CGprogram parts[] = {fragment.Handle(), vertex.Handle()};
    return cgCombinePrograms(2, parts);
}

void makeProgram(const QString &fragmentEntry, CGprogram *program, CGparameter *matrix,
                 CGparameter *color)
{
    *program = combinedProgram(fragmentEntry);
    if (!*program)
        return;
    cgGLLoadProgram(*program);
    *matrix = cgGetNamedParameter(*program, "modelViewProj");
    *color = cgGetNamedParameter(*program, "diffuseColor");
}

void destroy(CGprogram program)
{
    if (program)
        cgDestroyProgram(program);
}

// Views that move to another window get another context; what was loaded goes with the old one.
void followContext(OverlayPrograms &programs, QObject *owner)
{
    const QOpenGLContext *context = QOpenGLContext::currentContext();
    if (!context)
        return;
    const auto signal = &QOpenGLContext::aboutToBeDestroyed;
    QObject::disconnect(context, signal, owner, nullptr);
    QObject::connect(context, signal, owner, [&programs] { destroyPrograms(programs); });
}

} // namespace

void createPrograms(OverlayPrograms &programs, QObject *owner)
{
    if (programs.lines && programs.points)
        return;
    destroyPrograms(programs);
    makeProgram(QStringLiteral("lines_fragment"), &programs.lines, &programs.linesMatrix,
                &programs.linesColor);
    makeProgram(QStringLiteral("points_fragment"), &programs.points, &programs.pointsMatrix,
                &programs.pointsColor);
    followContext(programs, owner);
}

void destroyPrograms(OverlayPrograms &programs)
{
    destroy(programs.lines);
    destroy(programs.points);
    programs = OverlayPrograms();
}

void beginPrograms(const OverlayPrograms &programs)
{
    cgGLEnableProfile(CG_PROFILE_GLSLV);
    cgGLEnableProfile(CG_PROFILE_GLSLF);
    if (programs.lines)
        cgGLBindProgram(programs.lines);
}

void endPrograms()
{
    for (CGprofile profile : {CG_PROFILE_GLSLF, CG_PROFILE_GLSLV}) {
        cgGLDisableProfile(profile);
        cgGLUnbindProgram(profile);
    }
}

// Column after column: the program has the vector on the right of the matrix.
void setMatrix(const OverlayPrograms &programs, const orvane::Matrix &matrix)
{
    cgSetParameterValuefc(programs.linesMatrix, 16, matrix.Data());
}

void setColor(const OverlayPrograms &programs, const OverlayColor &color)
{
    cgSetParameterValuefc(programs.linesColor, int(color.size()), color.data());
}
