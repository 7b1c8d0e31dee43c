// SPDX-License-Identifier: MIT
#include "tests/support/recordingcg.h"

#include "host/cgmaterial/cgprogram.h"
#include "tests/support/recordinggl.h"

#include <Cg/cgGL.h>

#include <algorithm>
#include <memory>
#include <vector>

// Cg only declares them.
struct _CGparameter
{
    CGprogram program;
    QString name;
};

struct _CGprogram
{
    explicit _CGprogram(const QString &entries) : name(entries)
    {
        ++RecordingCg::instance().livePrograms;
    }
    ~_CGprogram() { --RecordingCg::instance().livePrograms; }

    QString name;
    std::vector<std::unique_ptr<_CGparameter>> parameters;
};

namespace {

CGprogram boundProgram = nullptr;

void note(const char *name, const QStringList &arguments)
{
    RecordingGl &gl = RecordingGl::instance();
    gl.calls.append(QLatin1String(name) + QLatin1Char(' ') + arguments.join(QLatin1Char(' ')));
    if (gl.isBetweenBeginAndEnd)
        ++gl.mistakes;
}

QString text(double number)
{
    return QString::number(number);
}

} // namespace

RecordingCg &RecordingCg::instance()
{
    static RecordingCg recording;
    return recording;
}

namespace orvane {

CgProgram::~CgProgram()
{
    destroy();
}

bool CgProgram::CreateFromFile(const QString &path, int profile, const QString &entry)
{
    destroy();
    note("CreateFromFile", {path, text(profile), entry});
    if (!RecordingCg::instance().missing.contains(entry))
        m_program = new _CGprogram(entry);
    return m_program != nullptr;
}

void CgProgram::destroy()
{
    if (m_program)
        cgDestroyProgram(m_program);
    m_program = nullptr;
}

} // namespace orvane

CGprogram CGENTRY cgCombinePrograms(int count, const CGprogram *programs)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(programs[i]->name);
    note("cgCombinePrograms", {text(count), names.join(QLatin1Char('+'))});
    return new _CGprogram(names.join(QLatin1Char('+')));
}

void CGENTRY cgDestroyProgram(CGprogram program)
{
    note("cgDestroyProgram", {program->name});
    if (program == boundProgram)
        boundProgram = nullptr;
    delete program;
}

CGparameter CGENTRY cgGetNamedParameter(CGprogram program, const char *name)
{
    note("cgGetNamedParameter", {program->name, QLatin1String(name)});
    program->parameters.push_back(
        std::make_unique<_CGparameter>(_CGparameter{program, QLatin1String(name)}));
    return program->parameters.back().get();
}

void CGENTRY cgSetParameterValuefc(CGparameter parameter, int count, const float *values)
{
    QStringList arguments{parameter->program->name, parameter->name};
    for (int i = 0; i < count; ++i)
        arguments.append(text(double(values[i])));
    note("cgSetParameterValuefc", arguments);
    if (parameter->program == boundProgram && parameter->name == QLatin1String("diffuseColor"))
        std::copy_n(values, 4, RecordingGl::instance().state.color.begin());
}

void CGGLENTRY cgGLLoadProgram(CGprogram program)
{
    note("cgGLLoadProgram", {program->name});
}

void CGGLENTRY cgGLEnableProfile(CGprofile profile)
{
    note("cgGLEnableProfile", {text(profile)});
    ++RecordingCg::instance().enabledProfiles;
}

void CGGLENTRY cgGLDisableProfile(CGprofile profile)
{
    note("cgGLDisableProfile", {text(profile)});
    --RecordingCg::instance().enabledProfiles;
}

void CGGLENTRY cgGLBindProgram(CGprogram program)
{
    note("cgGLBindProgram", {program->name});
    boundProgram = program;
    RecordingCg::instance().boundProfiles = 2;
}

void CGGLENTRY cgGLUnbindProgram(CGprofile profile)
{
    note("cgGLUnbindProgram", {text(profile)});
    if (boundProgram && --RecordingCg::instance().boundProfiles == 0)
        boundProgram = nullptr;
}
