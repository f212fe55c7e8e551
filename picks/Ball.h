#pragma once

#include <QColor>
#include <QWidget>

/// One lottery ball, as large as its place allows.
class Ball : public QWidget
{
    Q_OBJECT

public:
    explicit Ball(QWidget* parent = nullptr);

    void SetColor(const QColor& color);
    [[nodiscard]] QColor Color() const { return m_color; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};
