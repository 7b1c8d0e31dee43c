// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QList>
#include <QPair>
#include <QScopedPointer>

#include <memory>
#include <vector>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

//! The settings of "Create Mesh from Curves...", for editing while the user works on. Whoever is
//! told of createMesh() reads them through the getters.
class ManualRetopoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ManualRetopoDialog(QWidget *parent);
    ~ManualRetopoDialog() override;

    int maximumEdges() const { return m_maximumEdges; }
    //! Fractions of the average edge length.
    float mergeDistance() const { return m_mergeDistance / 100.0f; }
    float intersectionTolerance() const { return m_intersectionTolerance / 100.0f; }
    //! In percent, unlike the two above.
    float overrunTolerance() const { return m_overrunTolerance; }
    bool useSelfIntersections() const { return m_useSelfIntersections; }

    //! 1 for the axis's first choice, -1 for its second, 0 for none.
    int xSymmetry() const { return symmetry(0); }
    int ySymmetry() const { return symmetry(1); }
    int zSymmetry() const { return symmetry(2); }
    //! 1 to 3 for X to Z, 0 for none.
    int topologicalAxis() const;

    static int symmetrySign(int index);

signals:
    void createMesh();
    void renderIntersectionsCheckBox(int state);
    void dialogClosed();

public slots:
    void refreshRadio();
    void bringUpHelp();
    void onMaximumEdgesChanged(const QString &);
    void onMergeDistanceChanged(const QString &);
    void onIntersectionToleranceChanged(const QString &);
    void onOverrunChanged(const QString &);
    void onCreateMesh();
    void onRenderIntersectionCheck(int state);
    void onSelfIntersectionCheck(int state);
    void onOk();

private:
    using SymmetryControl = QPair<QComboBox *, QRadioButton *>;
    using TextSlot = void (ManualRetopoDialog::*)(const QString &);

    void createSymmetrySection();
    void addSymmetryAxis(QBoxLayout *axisRow, const QStringList &texts);
    int symmetry(int axis) const;

    QGridLayout *createParameters();
    void addMaximumEdges(QGridLayout *grid);
    void addMergeDistance(QGridLayout *grid);
    void addIntersectionTolerance(QGridLayout *grid);
    void addOverrunTolerance(QGridLayout *grid);
    void addSelfIntersections(QGridLayout *grid);
    QLineEdit *addNumber(QGridLayout *grid, int row, const QString &name, const QString &toolTip,
                         const QString &text, TextSlot slot);
    QLineEdit *addPercentage(QGridLayout *grid, int row, const QString &name,
                             const QString &toolTip, float value, TextSlot slot);
    std::unique_ptr<QBoxLayout> createRenderRow();
    QBoxLayout *createButtons();
    void keepUnshown(std::unique_ptr<QBoxLayout> row);

    QLabel *m_axisLabel = nullptr; // like the controls, kept by m_unshownWidgets
    QScopedPointer<QList<SymmetryControl>> m_symmetryControls;
    float m_mergeDistance = 30.0f;        // percent of the average edge length
    float m_intersectionTolerance = 5.0f; // percent of the average edge length
    int m_maximumEdges = 5;               // count
    float m_overrunTolerance = 35.0f;     // percent of an end segment
    bool m_useSelfIntersections = false;
    std::vector<std::unique_ptr<QWidget>> m_unshownWidgets;
    std::vector<std::unique_ptr<QBoxLayout>> m_unshownRows; // goes before what stands in them
};
