#pragma once

#include <QProxyStyle>
#include <QStyleOption>

/// The look of the application on top of Fusion: flat and quiet, spaced on a grid of 8 pixels, one accent
/// colour (see TavrelColors). Light or dark as the desktop's palette is, unless one of the two is asked for.
class TavrelStyle : public QProxyStyle {
    Q_OBJECT

public:
    enum class Scheme { Desktop, Light, Dark };

    explicit TavrelStyle(Scheme scheme = Scheme::Desktop);

    /// To be called before the application object is made: drawing at the screen's full resolution, at any
    /// scale factor.
    static void prepareApplication();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    QPalette standardPalette() const override;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    /// The sign for what has no room in a tool bar is drawn as all icons are. Qt would make it anew from
    /// pictures for each tool bar, and its cache of pictures remembers the key of each for good.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    void drawGroupBox(const QStyleOptionGroupBox& option, QPainter& painter) const;
    QRect groupBoxRect(const QStyleOptionGroupBox& option, SubControl part) const;
    QRect scrollBarRect(const QStyleOptionSlider& option, SubControl part) const;

    Scheme m_scheme;
};
