package orchard;

import java.util.Locale;

/** A price with two digits and its currency. */
@SuppressWarnings("serial")
final class PriceRenderer extends PaddedRenderer {
    PriceRenderer() {
        setName("price");
    }

    @Override
    protected void setValue(Object value) {
        setText(String.format(Locale.ROOT, "%.2f \u20AC", (Double) value));
    }
}
