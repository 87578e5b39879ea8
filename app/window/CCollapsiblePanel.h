#pragma once
// A side panel of the main window that folds to a thin strip and back.
// The strip (kStripWidth pixels) carries the toggle button and sits on the
// side facing the centre; collapsed, only the strip is left. Inside a
// QSplitter the panel takes its width from the largest neighbour when it
// opens again, so it comes back at the width it had.
#include <QWidget>

class QHBoxLayout;
class QToolButton;

class CCollapsiblePanel : public QWidget
{
    Q_OBJECT
public:
    enum ESide
    {
        LeftSide,
        RightSide
    };
    static const int kStripWidth = 14;

    explicit CCollapsiblePanel(ESide side, QWidget* parent = nullptr);

    ESide side() const { return m_side; }
    // Replaces the content; the previous content is deleted.
    void setContent(QWidget* content);
    QWidget* content() const { return m_content; }

    bool isCollapsed() const { return m_collapsed; }
    // Width the panel opens to; remembered at every collapse.
    int expandedWidth() const { return m_expandedWidth; }
    void setExpandedWidth(int width) { m_expandedWidth = width; }
    QToolButton* toggleButton() const { return m_toggle; }
    // For content that folds itself (it has its own fold button): the strip
    // and its toggle are hidden and the panel only follows the content's width.
    void setStripVisible(bool visible);

public slots:
    void setCollapsed(bool collapsed);
    void toggle() { setCollapsed(!m_collapsed); }
    // Takes this width in the splitter, from or back to the video area.
    void resizeInSplitter(int width);

signals:
    void collapsedChanged(bool collapsed);

protected:
    void changeEvent(QEvent* event) override;

private:
    void updateToggle();

    ESide m_side;
    QHBoxLayout* m_layout;
    QWidget* m_strip;
    QToolButton* m_toggle;
    QWidget* m_content = nullptr;
    bool m_collapsed = false;
    int m_expandedWidth = 300;
};
