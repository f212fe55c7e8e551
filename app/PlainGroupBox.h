#pragma once

#include <QGroupBox>

/// A group box whose frame is a plain line: the style's own is a picture, to be read and stretched at the
/// start.
class PlainGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};
