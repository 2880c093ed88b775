package orchard;

import java.awt.BorderLayout;
import java.awt.Component;

import javax.swing.BorderFactory;
import javax.swing.Box;
import javax.swing.BoxLayout;
import javax.swing.ButtonGroup;
import javax.swing.JCheckBox;
import javax.swing.JComponent;
import javax.swing.JLabel;
import javax.swing.JPanel;
import javax.swing.JRadioButton;
import javax.swing.JSlider;

/** A chart, and beside it a column of controls for it. */
@SuppressWarnings("serial")
final class HarvestView extends JPanel {
    private final HarvestChart chart = new HarvestChart();
    private final JPanel controls = new JPanel();

    HarvestView() {
        super(new BorderLayout(12, 12));
        setName("harvest");
        setBorder(BorderFactory.createEmptyBorder(12, 12, 12, 12));
        controls.setName("harvest.controls");
        controls.setLayout(new BoxLayout(controls, BoxLayout.Y_AXIS));
        addVarieties();
        addScale();
        controls.add(Box.createVerticalGlue());
        add(chart, BorderLayout.CENTER);
        add(controls, BorderLayout.EAST);
    }

    private void addVarieties() {
        add(new JLabel("Variety"));
        ButtonGroup group = new ButtonGroup();
        for (Varieties.Variety variety : Varieties.all()) {
            JRadioButton button = new JRadioButton(variety.name, group.getButtonCount() == 0);
            button.addActionListener(event -> chart.show(variety));
            group.add(button);
            add(button);
        }
        controls.add(Box.createVerticalStrut(12));
    }

    private void addScale() {
        JSlider scale = new JSlider(20, 100, 100);
        scale.setName("harvest.scale");
        scale.addChangeListener(event -> chart.setScale(scale.getValue()));
        JCheckBox late = new JCheckBox("In honey");
        late.addActionListener(event -> chart.setBarColor(late.isSelected() ? Palette.HONEY : Palette.LEAF));
        add(new JLabel("Height"));
        add(scale);
        add(late);
    }

    private void add(JComponent control) {
        control.setAlignmentX(Component.LEFT_ALIGNMENT);
        controls.add(control);
    }
}
