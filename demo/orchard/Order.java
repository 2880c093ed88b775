package orchard;

import java.awt.Color;

/** What somebody has ordered. */
final class Order {
    /** How far an order is. */
    enum State {
        OPEN("open", Palette.HONEY),
        PACKED("packed", Palette.SKY),
        DELIVERED("delivered", Palette.LEAF),
        CANCELLED("cancelled", Palette.CHERRY);

        private final String text;
        private final Color color;

        State(String text, Color color) {
            this.text = text;
            this.color = color;
        }

        Color color() {
            return color;
        }

        @Override
        public String toString() {
            return text;
        }
    }

    String customer;
    String variety;
    int kilograms;
    double price;
    boolean isUrgent;
    State state = State.OPEN;

    Order(String customer, String variety, int kilograms, double price) {
        this.customer = customer;
        this.variety = variety;
        this.kilograms = kilograms;
        this.price = price;
    }

    Order in(State newState) {
        state = newState;
        return this;
    }

    Order urgent() {
        isUrgent = true;
        return this;
    }
}
