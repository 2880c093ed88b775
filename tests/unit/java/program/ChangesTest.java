package program;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import java.awt.Color;
import java.awt.Component;
import java.awt.Font;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicInteger;

import javax.swing.ImageIcon;
import javax.swing.JLabel;
import javax.swing.JPanel;

import org.junit.After;
import org.junit.Test;

import com.vantrel.model.SetBy;
import com.vantrel.record.Change;
import com.vantrel.record.ChangeRecorder;
import com.vantrel.record.Recording;
import com.vantrel.record.SetBys;

/**
 * Who has set what. Runs under the agent, which makes components tell of it; in a package of its own, for calls out of
 * the inspector's packages count as the inspector's.
 */
public class ChangesTest {
    private final JLabel label = new JLabel();
    private final AtomicInteger asked = new AtomicInteger();
    private final ChangeRecorder recorder = new ChangeRecorder(component -> asked.incrementAndGet() > 0);

    @After
    public void stop() {
        recorder.stop();
    }

    /** A program's class with components in it. */
    private static final class Form extends JPanel { private static final long serialVersionUID = 1L; }

    private static String here(int linesAbove) {
        return "ChangesTest.java:" + (new Throwable().getStackTrace()[1].getLineNumber() - linesAbove);
    }

    private void expect(String property, String place) {
        SetBy setBy = SetBys.of(label, property);
        assertEquals(property, place, setBy == null ? null : setBy.place());
        assertTrue(setBy.sentence(), setBy.sentence().contains(" on " + Thread.currentThread().getName()));
    }

    private void setAndExpectAll() {
        label.setText("new");
        expect("text", here(1));
        label.setEnabled(false);
        expect("enabled", here(1));
        label.setBounds(1, 2, 3, 4);
        expect("bounds", here(1));
        label.setVisible(!label.isVisible());
        expect("visible", here(1));
        label.setBackground(Color.RED);
        expect("background", here(1));
        label.setFont(new Font("Dialog", Font.BOLD, 20));
        expect("font", here(1));
        label.setIcon(new ImageIcon());
        expect("icon", here(1));
        label.setToolTipText("tip");
        expect("toolTipText", here(1));
        label.putClientProperty("program.key", "value");
        expect("program.key", here(1));
    }

    @Test
    public void lineAndThreadOfASetterAreKnown() throws Exception {
        recorder.start();
        List<Throwable> failed = new ArrayList<>();
        Thread other = new Thread(this::setAndExpectAll, "some thread");
        other.setUncaughtExceptionHandler((thread, thrown) -> failed.add(thrown));
        other.start();
        other.join();
        assertEquals("[]", failed.toString());
        setAndExpectAll();
        assertNull(SetBys.of(label, "border"));
        assertNull(SetBys.of(new JLabel(), "nothing of the kind"));
    }

    private static void set(JLabel at, int depth) {
        if (depth == 0) {
            at.setText("set");
        } else {
            set(at, depth - 1);
        }
    }

    private List<Change> texts() {
        List<Change> texts = new ArrayList<>();
        for (Change change : ChangeRecorder.of(label)) {
            if (change.what().equals("text")) {
                texts.add(change);
            }
        }
        return texts;
    }

    @Test(timeout = 30_000)
    public void theLastFiveThatDifferAreKept() throws Exception {
        recorder.start();
        for (int depth = 0; depth < 7; depth++) {
            set(label, depth);
        }
        assertEquals(5, texts().size());
        int[] calls = texts().stream().mapToInt(change -> change.stack().text().split("\n").length).toArray();
        for (int i = 1; i < calls.length; i++) {
            assertEquals("the last one first", calls[0] - i, calls[i]);
        }
        // More than can wait for their stacks, and from the same place: one change.
        for (int i = 0; i < 20_000; i++) {
            label.setText("again");
        }
        assertEquals(20_000, texts().get(0).times());
        assertEquals(5, texts().size());
    }

    @Test
    public void whatIsNotWantedIsNotNoted() {
        label.setText("before");
        recorder.start();
        recorder.start();
        ChangeRecorder second = new ChangeRecorder(component -> true);
        second.start();
        label.setText("once");
        String place = here(1);
        second.stop();
        label.revalidate();
        recorder.stop();
        label.setText("after");
        int texts = texts().stream().mapToInt(Change::times).sum();
        assertEquals(1, texts);
        assertTrue(ChangeRecorder.of(label).stream().noneMatch(change -> change.what().equals("valid")));
        assertEquals(place, SetBys.of(label, "text").place());
    }

    @Test(timeout = 30_000)
    public void nothingIsHeld() throws Exception {
        recorder.start();
        WeakReference<Component> gone = new WeakReference<>(changed());
        while (gone.get() != null) {
            System.gc();
            Thread.sleep(10);
        }
        recorder.stop();
        Thread[] threads = new Thread[Thread.activeCount() + 10];
        for (int i = 0; i < 500 && isThere("vantrel-recorder", threads); i++) {
            Thread.sleep(10);
        }
        assertTrue("the recorder's thread has ended", !isThere("vantrel-recorder", threads));
    }

    private static Component changed() {
        JLabel one = new JLabel();
        one.setText("set");
        return one;
    }

    private static boolean isThere(String name, Thread[] threads) {
        int count = Thread.enumerate(threads);
        for (int i = 0; i < count; i++) {
            if (threads[i].getName().equals(name)) {
                return true;
            }
        }
        return false;
    }

    @Test
    public void aPatternChoosesAClassAndWhatIsInIt() {
        Form form = new Form();
        JLabel inside = new JLabel();
        form.add(new JPanel().add(inside).getParent());
        Object[][] cases = {
                // pattern, component, whether it is chosen
                {"program.*", form, true},
                {"program.*", inside, true},
                {"program.*", label, false},
                {"*Form", inside, true},
                {"javax.swing.JLabel", label, true},
                {"javax.swing.J", label, false},
                {"javaxxswing*", label, false},
        };
        for (Object[] c : cases) {
            assertEquals(c[0] + " " + c[1].getClass(), c[2], Recording.within((String) c[0]).test((Component) c[1]));
        }
    }
}
