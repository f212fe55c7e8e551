#pragma once

#include <QRadioButton>

/// An option whose caption leaves a gap of blanks for an input box, its child: "Left           to  Right".
class CaptionOption : public QRadioButton
{
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QWidget* Box() const;
    void PlaceBox();
};
